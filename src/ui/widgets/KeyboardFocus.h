#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace Zandrove {

/// Shows who works by keyboard where the focus is: a frame around the focused widget, for as long as the
/// focus stays there. It comes only after Tab, Backtab or a shortcut, so that who works by mouse never sees
/// it, and until the next press of the mouse it goes along where the program moves the focus.
///
/// One object serves every window of the program; the application must exist. In addition, Enter on a focused
/// push button or check box does what Space does.
class KeyboardFocus final : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardFocus(QObject *parent = nullptr);
    ~KeyboardFocus() override;

    /// Draws the frame of `control` within `area`, such as the row that a check box stands for; `area` is
    /// `control` itself or around it. Its corners are as round as those of the area, in pixels.
    static void setArea(QWidget *control, QWidget *area, int cornerRadius);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void noteInput(const QEvent &event);
    void onFocusIn(QWidget *control, Qt::FocusReason reason);
    void onFocusOut(Qt::FocusReason reason);
    void showFrame(QWidget *control);
    void hideFrame();

    bool m_tabbing = false;      ///< the focus was last moved by key, with no click since
    QPointer<QWidget> m_control; ///< that the frame is for
    QPointer<QWidget> m_frame;
};

/// Lets `widget` take the focus by Tab, never by a click, and makes Space and Enter call `click`, which must
/// not outlive the widget.
void clickByKey(QWidget *widget, std::function<void()> click);

} // namespace Zandrove
