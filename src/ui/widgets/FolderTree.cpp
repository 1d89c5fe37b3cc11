#include "ui/widgets/FolderTree.h"

#include "ui/Log.h"
#include "ui/Theme.h"
#include "ui/widgets/Labels.h"

#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QScopedValueRollback>
#include <QTreeWidgetItemIterator>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int MAX_ITEMS_PER_FOLDER = 100;
constexpr int PathRole = Qt::UserRole;
constexpr int LoadedRole = Qt::UserRole + 1;

QString pathOf(const QTreeWidgetItem *item)
{
    return item->data(0, PathRole).toString();
}

/// Folders that belong to the system, which nobody moves.
bool isSystemFolder(const QString &name)
{
    static const QSet<QString> Names = {u"System Volume Information"_s,
                                        u"Recovery"_s,
                                        u"$Recycle.Bin"_s,
                                        u"Config.Msi"_s,
                                        u"MSOCache"_s,
                                        u"PerfLogs"_s};
    return name.startsWith(u'$') || name.startsWith(u'.') || Names.contains(name);
}

QString treeStyle()
{
    namespace Colour = Theme::Colour;
    return u"QTreeWidget { background: %1; border: none; outline: none; font-size: 13px; color: %2; } "
           u"QTreeWidget::item { padding: 4px 2px; min-height: 24px; border: none; } "
           u"QTreeWidget::item:hover { background: %3; } "
           u"QTreeWidget::item:selected { background: %4; color: %2; } "
           u"QTreeView::branch { background: transparent; } "
           u"QTreeView::branch:has-children:closed { image: url(:/icons/chevron-right.svg); padding: 6px; } "
           u"QTreeView::branch:has-children:open { image: url(:/icons/chevron-down.svg); padding: 6px; } "_s
               .arg(Colour::White, Colour::Text, Colour::Hover, Colour::BlueTintStrong) +
           Theme::treeCheckBoxStyle();
}

} // namespace

FolderTree::FolderTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setIndentation(24);
    setAnimated(true);
    setColumnCount(1);
    setUniformRowHeights(true);
    setStyleSheet(treeStyle());
    connect(this, &QTreeWidget::itemExpanded, this, &FolderTree::onExpanded);
    connect(this, &QTreeWidget::itemChanged, this, &FolderTree::onItemChanged);
}

QTreeWidgetItem *FolderTree::createItem(const QString &label, const QString &path, const QIcon &icon)
{
    auto *item = new QTreeWidgetItem({label});
    item->setData(0, PathRole, path);
    item->setData(0, LoadedRole, false);
    item->setToolTip(0, plainToolTip(path));
    item->setIcon(0, icon);
    item->setCheckState(0, Qt::Unchecked);
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
}

void FolderTree::addRoot(const QString &label, const QString &path, const QIcon &icon)
{
    addTopLevelItem(createItem(label, path, icon));
}

void FolderTree::showOnly(const QString &label, const QString &path, const QIcon &icon)
{
    clear();
    QTreeWidgetItem *root = createItem(label, path, icon);
    root->setData(0, LoadedRole, true);
    addTopLevelItem(root);
    loadSubfolders(root, path);
    root->setExpanded(true);
}

void FolderTree::onExpanded(QTreeWidgetItem *item)
{
    const QString path = pathOf(item);
    if (item->data(0, LoadedRole).toBool() || path.isEmpty())
        return;
    qCDebug(logUi) << "Loading subfolders for:" << path;
    const qsizetype tickedBefore = m_ticked.size();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    {
        // The mark is a change of the item, too, and must not pass for a change of its box.
        const QScopedValueRollback<bool> guard(m_updating, true);
        item->setData(0, LoadedRole, true);
        loadSubfolders(item, path);
    }
    QGuiApplication::restoreOverrideCursor();
    if (item->childCount() == 0)
        item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicator);
    if (m_ticked.size() != tickedBefore)
        Q_EMIT ticksChanged();
}

void FolderTree::loadSubfolders(QTreeWidgetItem *parent, const QString &path)
{
    if (parent == nullptr || path.isEmpty())
        return;
    const QDir dir(path);
    if (!dir.exists()) {
        qCDebug(logUi) << "Directory does not exist:" << path;
        return;
    }
    if (!dir.isReadable()) {
        qCDebug(logUi) << "Directory not readable:" << path;
        return;
    }

    const QFileInfoList entries =
        dir.entryInfoList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::IgnoreCase);
    const QIcon icon = QIcon(u":/icons/folder.svg"_s);
    const bool checked = parent->checkState(0) == Qt::Checked;
    QList<QTreeWidgetItem *> children;
    auto entry = entries.constBegin();
    for (; entry != entries.constEnd() && children.size() < MAX_ITEMS_PER_FOLDER; ++entry) {
        const QString childPath = entry->absoluteFilePath();
        if (isSystemFolder(entry->fileName()) || !QDir(childPath).exists())
            continue;
        QTreeWidgetItem *child = createItem(entry->fileName(), childPath, icon);
        if (checked) {
            child->setCheckState(0, Qt::Checked);
            setPathTicked(childPath, true);
        }
        children.append(child);
    }
    parent->addChildren(children);
    if (entry != entries.constEnd())
        qCDebug(logUi) << "Reached max items limit for:" << path;
    qCDebug(logUi) << "Loaded" << children.size() << "subfolders for:" << path;
}

void FolderTree::onItemChanged(QTreeWidgetItem *item, int column)
{
    if (m_updating || column != 0 || item == nullptr)
        return;
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        const Qt::CheckState state = item->checkState(0);
        setPathTicked(pathOf(item), state == Qt::Checked);
        updateChildren(item, state);
        updateParents(item);
    }
    viewport()->update();
    Q_EMIT ticksChanged();
}

void FolderTree::updateChildren(QTreeWidgetItem *item, Qt::CheckState state)
{
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem *child = item->child(i);
        child->setCheckState(0, state);
        setPathTicked(pathOf(child), state == Qt::Checked);
        updateChildren(child, state);
    }
}

void FolderTree::updateParents(const QTreeWidgetItem *item)
{
    for (QTreeWidgetItem *parent = item->parent(); parent != nullptr; parent = parent->parent()) {
        int checked = 0;
        int unchecked = 0;
        for (int i = 0; i < parent->childCount(); ++i) {
            const Qt::CheckState state = parent->child(i)->checkState(0);
            checked += state == Qt::Checked ? 1 : 0;
            unchecked += state == Qt::Unchecked ? 1 : 0;
        }
        if (checked == parent->childCount())
            parent->setCheckState(0, Qt::Checked);
        else if (unchecked == parent->childCount())
            parent->setCheckState(0, Qt::Unchecked);
        else
            parent->setCheckState(0, Qt::PartiallyChecked);
    }
}

void FolderTree::setPathTicked(const QString &path, bool ticked)
{
    if (path.isEmpty())
        return;
    if (ticked)
        m_ticked.insert(path);
    else
        m_ticked.remove(path);
}

void FolderTree::tickAll()
{
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        for (int i = 0; i < topLevelItemCount(); ++i) {
            QTreeWidgetItem *item = topLevelItem(i);
            item->setCheckState(0, Qt::Checked);
            updateChildren(item, Qt::Checked);
            setPathTicked(pathOf(item), true);
        }
    }
    Q_EMIT ticksChanged();
}

void FolderTree::untickAll()
{
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        m_ticked.clear();
        for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item)
            (*item)->setCheckState(0, Qt::Unchecked);
    }
    Q_EMIT ticksChanged();
}

} // namespace Zandrove
