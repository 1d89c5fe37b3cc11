#include "WizardView.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QJsonArray>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// The widgets of that kind that are seen in `window`.
template <typename Kind = QWidget>
QList<Kind *> seenIn(const QWidget *window)
{
    QList<Kind *> widgets = window->findChildren<Kind *>();
    widgets.removeIf([](const Kind *widget) { return !widget->isVisible(); });
    return widgets;
}

/// Clicks where the window system would, so that whatever lies above `widget` gets the click.
bool clickAt(QWidget *widget, const QPoint &position)
{
    QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, position));
    return true;
}

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button ? button->text() : QString();
}

/// Where a user would click it: a box with a text answers only there and on its indicator.
QPoint handleOf(const QWidget *widget)
{
    if (!qobject_cast<const QCheckBox *>(widget))
        return widget->rect().center();
    QStyleOptionButton option;
    option.initFrom(widget);
    return widget->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, widget).center();
}

/// Brings `widget` into the sight of the scroll areas around it.
void scrollTo(QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(widget);
    }
}

} // namespace

WizardView::WizardView(QWidget *window)
    : m_window(window)
{
}

int WizardView::page() const
{
    const auto *stack = m_window->findChild<QStackedWidget *>(u"PageStack"_s);
    return stack ? stack->currentIndex() : -1;
}

QWidget *WizardView::front() const
{
    for (QWidget *above : {QApplication::activePopupWidget(), QApplication::activeModalWidget()}) {
        if (above)
            return above;
    }
    return m_window;
}

QString WizardView::dialogTitle() const
{
    const QWidget *dialog = QApplication::activeModalWidget();
    return dialog ? dialog->windowTitle() : QString();
}

QStringList WizardView::texts() const
{
    QStringList texts;
    for (const QWidget *widget : seenIn(front()))
        texts.append(textOf(widget));
    for (const QAction *entry : entries())
        texts.append(entry->text());
    texts.removeAll(QString());
    return texts;
}

QList<QAction *> WizardView::entries() const
{
    const auto *menu = qobject_cast<const QMenu *>(front());
    return menu ? menu->actions() : QList<QAction *>();
}

QString WizardView::nameOf(QWidget *widget)
{
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

QWidget *WizardView::control(const QString &name) const
{
    for (QWidget *widget : seenIn(front())) {
        if (widget->focusPolicy() != Qt::NoFocus && (nameOf(widget) == name || textOf(widget) == name))
            return widget;
    }
    return nullptr;
}

bool WizardView::click(const QString &name) const
{
    if (QWidget *widget = control(name)) {
        scrollTo(widget);
        return clickAt(widget, handleOf(widget));
    }
    for (QTabBar *bar : seenIn<QTabBar>(front())) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            if (bar->tabText(tab) == name)
                return clickAt(bar, bar->tabRect(tab).center());
        }
    }
    for (QAction *entry : entries()) {
        if (entry->text() == name)
            return clickAt(front(), static_cast<QMenu *>(front())->actionGeometry(entry).center());
    }
    return false;
}

bool WizardView::clickFolder(const QString &path) const
{
    for (QTreeWidget *tree : seenIn<QTreeWidget>(front())) {
        for (QTreeWidgetItemIterator item(tree); *item; ++item) {
            if ((*item)->data(0, Qt::UserRole).toString() != path)
                continue;
            tree->scrollToItem(*item);
            const QRect row = tree->visualItemRect(*item);
            return clickAt(tree->viewport(), QPoint(row.left() + 10, row.center().y()));
        }
    }
    return false;
}

bool WizardView::clickListEntry(const QString &text) const
{
    for (QListWidget *list : seenIn<QListWidget>(front())) {
        for (const QListWidgetItem *item : list->findItems(text, Qt::MatchExactly))
            return clickAt(list->viewport(), list->visualItemRect(item).center());
    }
    return false;
}

void WizardView::press(int key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(front()->windowHandle(), Qt::Key(key), modifiers);
}

void WizardView::type(const QString &text) const
{
    for (const QChar character : text)
        QTest::keyClick(front()->windowHandle(), character.toLatin1());
}

QPixmap WizardView::picture() const
{
    QPixmap picture = m_window->grab();
    QPainter painter(&picture);
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        const QPoint corner = m_window->rect().center() - dialog->rect().center();
        painter.drawPixmap(corner, dialog->grab());
        // In the place of the frame that the system would give it.
        painter.setPen(Qt::gray);
        painter.drawRect(QRect(corner, dialog->size()));
    }
    if (QWidget *menu = QApplication::activePopupWidget())
        painter.drawPixmap(menu->pos() - m_window->pos(), menu->grab());
    return picture;
}

QJsonObject WizardView::state() const
{
    QJsonArray controls;
    for (QWidget *widget : seenIn(front())) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
            controls.append(nameOf(widget));
    }
    QJsonArray tabs;
    for (const QTabBar *bar : seenIn<QTabBar>(front())) {
        for (int tab = 0; tab < bar->count(); ++tab)
            tabs.append(bar->tabText(tab));
    }
    QWidget *focus = QApplication::focusWidget();
    return {{u"page"_s, page()},
            {u"dialog"_s, dialogTitle()},
            {u"focus"_s, focus ? nameOf(focus) : QString()},
            {u"controls"_s, controls},
            {u"tabs"_s, tabs},
            {u"texts"_s, QJsonArray::fromStringList(texts())}};
}

} // namespace Zandrove
