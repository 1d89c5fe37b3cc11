#include "ui/widgets/SelectableCard.h"

#include "ui/widgets/KeyboardFocus.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace Zandrove {

namespace {

class AccessibleChoice final : public QAccessibleWidget
{
public:
    explicit AccessibleChoice(SelectableCard *card)
        : QAccessibleWidget(card, QAccessible::RadioButton)
    {
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = static_cast<const SelectableCard *>(widget())->isSelected();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &actionName) override
    {
        if (actionName != pressAction()) {
            QAccessibleWidget::doAction(actionName);
            return;
        }
        // By key, so that the card itself decides whether it can be pressed.
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(widget(), &space);
    }
};

QAccessibleInterface *makeInterface(const QString & /*className*/, QObject *object)
{
    auto *card = qobject_cast<SelectableCard *>(object);
    return card ? new AccessibleChoice(card) : nullptr;
}

} // namespace

SelectableCard::SelectableCard(const Look &look, QWidget *parent)
    : QWidget(parent)
    , m_look(look)
{
    QAccessible::installFactory(makeInterface); // again and again is once
    setCursor(Qt::PointingHandCursor);
    clickByKey(this, [this] { press(); });
    KeyboardFocus::setArea(this, this, m_look.cornerRadius);
}

void SelectableCard::setPressable(bool pressable)
{
    m_pressable = pressable;
    setCursor(pressable ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void SelectableCard::setSelected(bool selected)
{
    if (m_selected == selected)
        return;
    m_selected = selected;
    showSelected(selected);
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void SelectableCard::press()
{
    if (m_pressable)
        Q_EMIT clicked();
}

void SelectableCard::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        press();
    else
        QWidget::mousePressEvent(event);
}

void SelectableCard::enterEvent(QEnterEvent *)
{
    m_hovered = true;
    update();
}

void SelectableCard::leaveEvent(QEvent *)
{
    m_hovered = false;
    update();
}

void SelectableCard::paintEvent(QPaintEvent *)
{
    const Face &face = m_selected ? m_look.selected : m_hovered ? m_look.hovered : m_look.plain;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(face.fill));
    painter.setPen(QPen(QColor(face.border), 2));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), m_look.cornerRadius, m_look.cornerRadius);
}

} // namespace Zandrove
