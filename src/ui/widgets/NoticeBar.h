#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;

namespace Zandrove {

/// A line that tells the user of something out of the ordinary, with at most one thing to do about it. Hidden
/// until it has a text.
class NoticeBar final : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    /// Shows `text`, as it is and never as markup, and a button for `action`; without an action no button. An
    /// empty text hides the bar.
    void tell(const QString &text, const QString &action = QString());
    [[nodiscard]] QString text() const;

Q_SIGNALS:
    void actionClicked();

private:
    QLabel *m_text = nullptr;
    QPushButton *m_button = nullptr;
};

} // namespace Zandrove
