#pragma once

#include <QString>
#include <QWidget>

namespace Zandrove {

/// The row of a file of a running transfer, 48 pixels high. It paints itself and costs a repaint a change,
/// because a run of small files changes it very often.
class TransferFileItem final : public QWidget
{
    Q_OBJECT

public:
    enum Status : int {
        Pending = 0,
        Active = 1,
        Success = 2, ///< stands on the New PC, whole
        Failed = 3,
        Sent = 4,     ///< has left the Old PC; nothing is known of it yet
        WasThere = 5, ///< stood on the New PC before
        WasDifferent = 6,
    };
    Q_ENUM(Status)

    explicit TransferFileItem(QWidget *parent = nullptr);

    void setFileName(const QString &fileName);
    [[nodiscard]] QString fileName() const { return m_fileName; }
    /// What stands at the end of the row, and what a screen reader says of it: a word, or a reason.
    void setSizeText(const QString &text);
    void setStatus(Status status);
    [[nodiscard]] Status status() const { return m_status; }
    /// In percent. Ignored unless the row is `Active`.
    void setProgress(int percent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void refreshDescription();

    Status m_status = Pending;
    QString m_fileName;
    QString m_sizeText;
    int m_percent = 0;
};

} // namespace Zandrove
