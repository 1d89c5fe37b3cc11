#include "ui/widgets/AccessibleCard.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace Zandrove {

namespace {

constexpr char RoleProperty[] = "accessibleChoiceRole";

class AccessibleChoice final : public QAccessibleWidget
{
public:
    AccessibleChoice(QWidget *card, QAccessible::Role role)
        : QAccessibleWidget(card, role)
    {
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const bool selected = widget()->property("selected").toBool();
        if (role() == QAccessible::RadioButton) {
            state.checkable = true;
            state.checked = selected;
        } else {
            state.selectable = true;
            state.selected = selected;
        }
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

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    const QVariant role = object->property(RoleProperty);
    return role.isValid()
               ? new AccessibleChoice(static_cast<QWidget *>(object), QAccessible::Role(role.toInt()))
               : nullptr;
}

} // namespace

void makeAccessibleChoice(QWidget *card, QAccessible::Role role)
{
    QAccessible::installFactory(makeInterface); // again and again is once
    card->setProperty(RoleProperty, int(role));
}

void notifySelected(QWidget *card)
{
    QAccessible::State changed;
    if (card->property(RoleProperty).toInt() == QAccessible::RadioButton)
        changed.checked = true;
    else
        changed.selected = true;
    QAccessibleStateChangeEvent event(card, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace Zandrove
