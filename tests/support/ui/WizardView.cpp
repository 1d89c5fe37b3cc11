#include "WizardView.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// Clicks where the window system would, so that whatever lies above `widget` gets the click.
void clickAt(QWidget *widget, const QPoint &position)
{
    QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget->mapTo(window, position));
}

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    return {};
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
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    QWidget *dialog = QApplication::activeModalWidget();
    return dialog ? dialog : m_window.data();
}

QString WizardView::dialogTitle() const
{
    const QWidget *dialog = QApplication::activeModalWidget();
    return dialog ? dialog->windowTitle() : QString();
}

QStringList WizardView::texts() const
{
    QStringList texts;
    const QList<QWidget *> widgets = front()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QString text = textOf(widget);
        if (!text.isEmpty() && widget->isVisible())
            texts.append(text);
    }
    for (const QAction *entry : entries())
        texts.append(entry->text());
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
    const QList<QWidget *> widgets = front()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && widget->focusPolicy() != Qt::NoFocus &&
            (nameOf(widget) == name || textOf(widget) == name))
            return widget;
    }
    return nullptr;
}

bool WizardView::click(const QString &name) const
{
    if (QWidget *widget = control(name)) {
        scrollTo(widget);
        clickAt(widget, handleOf(widget));
        return true;
    }
    const QList<QTabBar *> bars = front()->findChildren<QTabBar *>();
    for (QTabBar *bar : bars) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            if (bar->isVisible() && bar->tabText(tab) == name) {
                clickAt(bar, bar->tabRect(tab).center());
                return true;
            }
        }
    }
    for (QAction *entry : entries()) {
        if (entry->text() == name) {
            clickAt(front(), static_cast<QMenu *>(front())->actionGeometry(entry).center());
            return true;
        }
    }
    return false;
}

bool WizardView::clickFolder(const QString &path) const
{
    auto *tree = front()->findChild<QTreeWidget *>();
    if (!tree || !tree->isVisible())
        return false;
    for (QTreeWidgetItemIterator item(tree); *item; ++item) {
        if ((*item)->data(0, Qt::UserRole).toString() != path)
            continue;
        tree->scrollToItem(*item);
        const QRect row = tree->visualItemRect(*item);
        clickAt(tree->viewport(), QPoint(row.left() + 10, row.center().y()));
        return true;
    }
    return false;
}

bool WizardView::clickListEntry(const QString &text) const
{
    auto *list = front()->findChild<QListWidget *>();
    if (!list || !list->isVisible())
        return false;
    const QList<QListWidgetItem *> items = list->findItems(text, Qt::MatchExactly);
    if (items.isEmpty())
        return false;
    clickAt(list->viewport(), list->visualItemRect(items.first()).center());
    return true;
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
    for (QWidget *above : {QApplication::activeModalWidget(), QApplication::activePopupWidget()}) {
        if (!above || above == m_window)
            continue;
        const bool isMenu = above->windowType() == Qt::Popup;
        const QPoint corner =
            isMenu ? above->pos() - m_window->pos() : m_window->rect().center() - above->rect().center();
        painter.drawPixmap(corner, above->grab());
        if (isMenu)
            continue;
        // In the place of the frame that the system would give it.
        painter.setPen(Qt::gray);
        painter.drawRect(QRect(corner, above->size()));
    }
    return picture;
}

QJsonObject WizardView::state() const
{
    QJsonArray controls;
    const QList<QWidget *> widgets = front()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
            controls.append(nameOf(widget));
    }
    QJsonArray tabs;
    for (const QTabBar *bar : front()->findChildren<QTabBar *>()) {
        for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab)
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
