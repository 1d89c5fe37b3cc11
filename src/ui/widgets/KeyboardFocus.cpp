#include "ui/widgets/KeyboardFocus.h"

#include "ui/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>

#include <utility>

namespace Zandrove {

namespace {

constexpr char AreaProperty[] = "keyboardFocusArea";
constexpr char RadiusProperty[] = "keyboardFocusRadius";
constexpr int DefaultRadius = 8; // pixels, that of the program's buttons

/// The frame itself, which lies over the whole of its parent and lets everything through.
class FocusFrame final : public QWidget
{
    Q_OBJECT

public:
    FocusFrame(QWidget *area, int cornerRadius)
        : QWidget(area)
        , m_cornerRadius(cornerRadius)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        if (auto *bar = qobject_cast<QTabBar *>(area))
            connect(bar, &QTabBar::currentChanged, this, &FocusFrame::fit);
        fit();
        raise();
        show();
    }

    void fit()
    {
        const auto *bar = qobject_cast<const QTabBar *>(parentWidget());
        setGeometry(bar ? bar->tabRect(bar->currentIndex()) : parentWidget()->rect());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // Two lines, so that one of them shows on any colour.
        drawLine(painter, 1.0, QPen(QColor(Theme::Colour::PrimaryDark), 2.0));
        drawLine(painter, 2.5, QPen(QColor(Theme::Colour::White), 1.0));
    }

private:
    void drawLine(QPainter &painter, double inset, const QPen &pen) const
    {
        painter.setPen(pen);
        const double radius = qMax(0.0, m_cornerRadius - inset);
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
    }

    int m_cornerRadius;
};

bool isEnter(const QKeyEvent &key)
{
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
           (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// Whether `event` was Enter on something to click.
bool clickOnEnter(QObject *watched, QEvent *event)
{
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (!isEnter(key) || !(qobject_cast<QPushButton *>(watched) || qobject_cast<QCheckBox *>(watched)))
        return false;
    auto *button = static_cast<QAbstractButton *>(watched);
    if (button->isEnabled() && !key.isAutoRepeat())
        button->click();
    return true;
}

/// Calls a function when its parent gets Space or Enter.
class KeyClicker final : public QObject
{
public:
    KeyClicker(QWidget *widget, std::function<void()> click)
        : QObject(widget)
        , m_click(std::move(click))
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const auto &key = *static_cast<QKeyEvent *>(event);
        const bool isClick = isEnter(key) || (key.key() == Qt::Key_Space && !key.modifiers());
        if (isClick && !key.isAutoRepeat())
            m_click();
        return isClick;
    }

private:
    std::function<void()> m_click;
};

} // namespace

KeyboardFocus::KeyboardFocus(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

KeyboardFocus::~KeyboardFocus()
{
    hideFrame();
}

void KeyboardFocus::setArea(QWidget *control, QWidget *area, int cornerRadius)
{
    control->setProperty(AreaProperty, QVariant::fromValue(area));
    control->setProperty(RadiusProperty, cornerRadius);
}

// A reason alone tells too little: Qt also gives Tab where a control that had the
// focus is hidden or disabled.
void KeyboardFocus::noteInput(const QEvent &event)
{
    if (event.type() == QEvent::Shortcut) {
        m_tabbing = true;
    } else if (event.type() == QEvent::MouseButtonPress) {
        m_tabbing = false;
    } else if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent &>(event).key();
        m_tabbing = m_tabbing || key == Qt::Key_Tab || key == Qt::Key_Backtab;
    }
}

bool KeyboardFocus::eventFilter(QObject *watched, QEvent *event)
{
    noteInput(*event);
    if (!watched->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::FocusIn:
        onFocusIn(static_cast<QWidget *>(watched), static_cast<QFocusEvent *>(event)->reason());
        break;
    case QEvent::FocusOut:
        onFocusOut(static_cast<QFocusEvent *>(event)->reason());
        break;
    case QEvent::Resize:
        if (m_frame && m_frame->parentWidget() == watched)
            static_cast<FocusFrame *>(m_frame.data())->fit();
        break;
    case QEvent::KeyPress:
        return clickOnEnter(watched, event);
    default:
        break;
    }
    return false;
}

void KeyboardFocus::onFocusIn(QWidget *control, Qt::FocusReason reason)
{
    // Other: the program has moved the focus on, and who works by key must see where to.
    const bool byKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                       reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason;
    if (byKey && m_tabbing)
        showFrame(control);
    else if (m_control != control)
        hideFrame();
}

void KeyboardFocus::onFocusOut(Qt::FocusReason reason)
{
    // The user comes back from another window to where the focus was left.
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        hideFrame();
}

void KeyboardFocus::showFrame(QWidget *control)
{
    hideFrame();
    auto *area = control->property(AreaProperty).value<QWidget *>();
    const QVariant radius = control->property(RadiusProperty);
    m_frame = new FocusFrame(area ? area : control, radius.isValid() ? radius.toInt() : DefaultRadius);
    m_control = control;
}

void KeyboardFocus::hideFrame()
{
    // Now, and not later: the next frame may be for the same control.
    delete m_frame;
    m_control.clear();
}

void clickByKey(QWidget *widget, std::function<void()> click)
{
    widget->setFocusPolicy(Qt::TabFocus);
    new KeyClicker(widget, std::move(click));
}

} // namespace Zandrove

#include "KeyboardFocus.moc"
