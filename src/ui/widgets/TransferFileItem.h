#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace Zandrove {

class ElidedLabel;

/// The row of a file of a running transfer, 48 pixels high.
class TransferFileItem final : public QWidget
{
    Q_OBJECT

public:
    enum Status : int { Pending = 0, Active = 1, Success = 2, Failed = 3 };
    Q_ENUM(Status)

    explicit TransferFileItem(QWidget *parent = nullptr);

    void setFileName(const QString &fileName);
    [[nodiscard]] QString fileName() const { return m_fileName; }
    void setSizeText(const QString &text);
    void setStatus(Status status);
    [[nodiscard]] Status status() const { return m_status; }
    /// In percent. Ignored unless the row is `Active`.
    void setProgress(int percent);

private:
    void setupUi();

    Status m_status = Pending;
    QString m_fileName;
    QLabel *m_statusLabel = nullptr;
    ElidedLabel *m_nameLabel = nullptr;
    QLabel *m_sizeLabel = nullptr;
    QProgressBar *m_progressBar = nullptr;
};

} // namespace Zandrove
