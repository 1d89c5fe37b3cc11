#pragma once

#include "diagnosis/Diagnosis.h"

#include <QList>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace Zandrove {

class FindingRow;

/// Answers "Can't find the other PC?" in place of the list of PCs: looks at this PC and its network, and
/// lists what it finds, that which stands in the way first.
class DiagnosisPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit DiagnosisPanel(QWidget *parent = nullptr);

    /// Begins, and begins anew when the user asks for that.
    void start(const DiagnosisOptions &options);
    /// Ends a diagnosis that runs.
    void cancel();

Q_SIGNALS:
    void closed(); ///< the user wants the list back

private:
    [[nodiscard]] QBoxLayout *createHeading();
    [[nodiscard]] QWidget *createList();
    void addFinding(const Finding &finding);
    void showEnd(int problems);
    void showOutcome(const QString &command, bool succeeded);

    Diagnosis *m_diagnosis;
    DiagnosisOptions m_options;
    QLabel *m_status = nullptr;
    QPushButton *m_again = nullptr;
    QVBoxLayout *m_layout = nullptr; ///< of the rows, ending in a stretch
    QList<FindingRow *> m_rows;      ///< in the order in which they are shown
};

} // namespace Zandrove
