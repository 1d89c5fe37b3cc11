#pragma once

#include "diagnosis/Finding.h"

#include <QWidget>

class QBoxLayout;
class QLabel;

namespace Zandrove {

/// One finding of a diagnosis: a mark for how much it matters, its sentence, what to do, and the command for
/// that, with a button to copy it.
class FindingRow final : public QWidget
{
    Q_OBJECT

public:
    /// With `canRun`, a further button offers to run the command.
    FindingRow(const Finding &finding, bool canRun, QWidget *parent = nullptr);

    [[nodiscard]] Severity severity() const { return m_finding.severity; }
    [[nodiscard]] QString command() const { return m_finding.command; }
    /// What has become of the command that was run.
    void showOutcome(bool succeeded);

Q_SIGNALS:
    void runWanted(const QString &command);

private:
    [[nodiscard]] QBoxLayout *createCommand(bool canRun);

    Finding m_finding;
    QLabel *m_outcome = nullptr;
};

} // namespace Zandrove
