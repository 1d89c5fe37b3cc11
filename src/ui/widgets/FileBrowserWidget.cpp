#include "ui/widgets/FileBrowserWidget.h"

#include "support/Utilities.h"
#include "ui/Log.h"
#include "ui/Theme.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/KeyboardFocus.h"
#include "ui/widgets/Labels.h"

#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

constexpr int MAX_ITEMS_PER_FOLDER = 100;
constexpr int PathRole = Qt::UserRole;
constexpr int LoadedRole = Qt::UserRole + 1;
// Lets the window show before the drives are asked, which may have to spin up.
constexpr auto DrivesDelay = 100ms;

QString thisPcMarker()
{
    return u"THIS_PC"_s;
}

QIcon iconFor(const QString &word)
{
    return QIcon(u":/icons/%1.svg"_s.arg(word));
}

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

bool isNetworkShare(const QString &rootPath)
{
    return rootPath.startsWith("//"_L1) || rootPath.startsWith("\\\\"_L1);
}

QString splitterStyle()
{
    return u"QSplitter::handle { background: %1; } QSplitter::handle:hover { background: %2; }"_s.arg(
        Colour::Border, Colour::BorderStrong);
}

// Without a border of its own, even none, an item is laid out by two styles that don't agree.
QString listStyle()
{
    return u"QListWidget { background: transparent; border: none; outline: none; font-size: 13px; } "
           u"QListWidget::item { padding: 8px 10px; color: %1; } "
           u"QListWidget::item:enabled { border: none; } " // the separator keeps its background
           u"QListWidget::item:hover { background: %2; } "
           u"QListWidget::item:selected { background: %3; color: %4; } "
           // The line between the entries, whose own background an item with a style does not show.
           u"QListWidget::item:disabled { background: %5; }"_s.arg(
               Colour::TextSecondary, Colour::Hover, Colour::BlueTintStrong, Colour::Text, Colour::Border);
}

QString treeStyle()
{
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

QPushButton *createToolButton(const QString &text)
{
    Theme::ButtonLook look;
    look.background = Colour::White;
    look.hover = Colour::Hover;
    look.text = Colour::TextSecondary;
    look.border = Colour::BorderStrong;
    look.fontPixels = 12;
    look.padding = "4px 12px"_L1;
    look.radius = 6;
    auto *button = new QPushButton(text);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(Theme::buttonStyle(look));
    return button;
}

/// A pane or bar of the browser, with a line at one of its sides.
QWidget *createPanel(const QString &name, QLatin1StringView side)
{
    auto *panel = new QWidget;
    panel->setObjectName(name);
    panel->setStyleSheet(u"#%1 { background: %2; border: none; border-%3: 1px solid %4; }"_s.arg(
        name, Colour::Panel, side, Colour::Border));
    return panel;
}

} // namespace

FileBrowserWidget::FileBrowserWidget(QWidget *parent)
    : QWidget(parent)
{
    setupUi();
    fillShortcuts();
    connect(m_tree, &QTreeWidget::itemExpanded, this, &FileBrowserWidget::onFolderExpanded);
    connect(m_tree, &QTreeWidget::itemChanged, this, &FileBrowserWidget::onItemChanged);
    connect(m_shortcutList, &QListWidget::itemClicked, this, &FileBrowserWidget::onShortcutClicked);
    clickByKey(m_shortcutList, [this] {
        if (QListWidgetItem *item = m_shortcutList->currentItem())
            onShortcutClicked(item);
    });
    QTimer::singleShot(DrivesDelay, this, &FileBrowserWidget::loadDrives);
}

void FileBrowserWidget::setupUi()
{
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->setStyleSheet(splitterStyle());
    splitter->setHandleWidth(1);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(createShortcutPane());
    splitter->addWidget(createTreePane());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
}

QWidget *FileBrowserWidget::createShortcutPane()
{
    QWidget *pane = createPanel(u"QuickAccess"_s, "right"_L1);
    pane->setMinimumWidth(200);
    QLabel *header = makeLabel(tr("Quick Access"), 13);
    header->setStyleSheet(u"QLabel { padding: 12px 16px; font-size: 13px; font-weight: 600; color: %1; "
                          u"background: %2; }"_s.arg(Colour::TextSecondary, Colour::Hover));
    m_shortcutList = new QListWidget;
    m_shortcutList->setAccessibleName(tr("Quick Access"));
    m_shortcutList->setStyleSheet(listStyle());
    m_shortcutList->setIconSize(QSize(18, 18));
    m_shortcutList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 1, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addWidget(m_shortcutList, 1);
    return pane;
}

QWidget *FileBrowserWidget::createTreePane()
{
    setupTree();
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createToolbar());
    layout->addWidget(m_tree, 1);
    return pane;
}

QWidget *FileBrowserWidget::createToolbar()
{
    QWidget *toolbar = createPanel(u"BrowserToolbar"_s, "bottom"_L1);
    toolbar->setFixedHeight(40);
    QPushButton *selectAllButton = createToolButton(tr("Select All"));
    QPushButton *clearButton = createToolButton(tr("Clear"));
    connect(selectAllButton, &QPushButton::clicked, this, &FileBrowserWidget::selectAll);
    connect(clearButton, &QPushButton::clicked, this, &FileBrowserWidget::clearSelection);

    auto *layout = new QHBoxLayout(toolbar);
    layout->setContentsMargins(12, 0, 12, 0);
    layout->setSpacing(8);
    // The label, shortened where it must be, is also the stretch between the two sides.
    layout->addWidget(new ElidedLabel(tr("Select folders to transfer"), 13, Colour::TextMuted), 1);
    layout->addWidget(selectAllButton);
    layout->addWidget(clearButton);
    return toolbar;
}

void FileBrowserWidget::setupTree()
{
    m_tree = new QTreeWidget;
    m_tree->setAccessibleName(tr("Select folders to transfer"));
    m_tree->setHeaderHidden(true);
    m_tree->setIndentation(24);
    m_tree->setAnimated(true);
    m_tree->setColumnCount(1);
    m_tree->setUniformRowHeights(true);
    m_tree->setStyleSheet(treeStyle());
}

void FileBrowserWidget::fillShortcuts()
{
    using Paths = QStandardPaths;
    const auto addLocation = [this](const QString &label, Paths::StandardLocation location,
                                    const QString &iconWord) {
        const QString path = Paths::writableLocation(location);
        if (path.isEmpty() || !QDir(path).exists())
            return;
        addShortcut(label, path, iconWord);
        m_shortcutPaths.insert(label, path);
    };
    addLocation(tr("Desktop"), Paths::DesktopLocation, u"desktop"_s);
    addLocation(tr("My Documents"), Paths::DocumentsLocation, u"documents"_s);
    addLocation(tr("Pictures"), Paths::PicturesLocation, u"pictures"_s);
    addLocation(tr("Videos"), Paths::MoviesLocation, u"videos"_s);
    addLocation(tr("Music"), Paths::MusicLocation, u"music"_s);
    addLocation(tr("Downloads"), Paths::DownloadLocation, u"downloads"_s);

    auto *separator = new QListWidgetItem(m_shortcutList);
    separator->setFlags(Qt::NoItemFlags);
    separator->setSizeHint(QSize(0, 1));
    separator->setBackground(QColor(Colour::Border));

    addShortcut(tr("This PC"), thisPcMarker(), u"computer"_s);
}

void FileBrowserWidget::addShortcut(const QString &label, const QString &path, const QString &iconWord)
{
    auto *item = new QListWidgetItem(iconFor(iconWord), label, m_shortcutList);
    item->setData(PathRole, path);
    item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
}

void FileBrowserWidget::loadDrives()
{
    m_tree->clear();
    const QIcon icon = iconFor(u"drive"_s);
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : volumes) {
        if (!volume.isValid() || !volume.isReady() || isNetworkShare(volume.rootPath()))
            continue;
        const QString root = volume.rootPath();
        const QString letter = root.left(2);
        const QString label = volume.name().isEmpty() ? tr("Local Disk (%1)").arg(letter)
                                                      : u"%1 (%2)"_s.arg(volume.name(), letter);
        const QString room =
            tr(" - %1 free of %2").arg(formatSize(volume.bytesFree()), formatSize(volume.bytesTotal()));
        m_tree->addTopLevelItem(createFolderItem(label + room, root, icon));
    }
}

QTreeWidgetItem *FileBrowserWidget::createFolderItem(const QString &label, const QString &path,
                                                     const QIcon &icon)
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

void FileBrowserWidget::onShortcutClicked(QListWidgetItem *item)
{
    const QString path = item->data(PathRole).toString();
    if (path == thisPcMarker()) {
        loadDrives();
        return;
    }
    if (path.isEmpty())
        return;
    m_tree->clear();
    QTreeWidgetItem *root = createFolderItem(item->text(), path, item->icon());
    root->setData(0, LoadedRole, true);
    m_tree->addTopLevelItem(root);
    loadSubfolders(root, path);
    root->setExpanded(true);
}

void FileBrowserWidget::onFolderExpanded(QTreeWidgetItem *item)
{
    const QString path = pathOf(item);
    if (item->data(0, LoadedRole).toBool() || path.isEmpty())
        return;
    qCDebug(logUi) << "Loading subfolders for:" << path;
    const qsizetype selectedBefore = m_checkedPaths.size();
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
    if (m_checkedPaths.size() != selectedBefore)
        Q_EMIT selectionChanged();
}

void FileBrowserWidget::loadSubfolders(QTreeWidgetItem *parent, const QString &path)
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
    const QIcon icon = iconFor(u"folder"_s);
    const bool checked = parent->checkState(0) == Qt::Checked;
    QList<QTreeWidgetItem *> children;
    auto entry = entries.constBegin();
    for (; entry != entries.constEnd() && children.size() < MAX_ITEMS_PER_FOLDER; ++entry) {
        const QString childPath = entry->absoluteFilePath();
        if (isSystemFolder(entry->fileName()) || !QDir(childPath).exists())
            continue;
        QTreeWidgetItem *child = createFolderItem(entry->fileName(), childPath, icon);
        if (checked) {
            child->setCheckState(0, Qt::Checked);
            setPathChecked(childPath, true);
        }
        children.append(child);
    }
    parent->addChildren(children);
    if (entry != entries.constEnd())
        qCDebug(logUi) << "Reached max items limit for:" << path;
    qCDebug(logUi) << "Loaded" << children.size() << "subfolders for:" << path;
}

void FileBrowserWidget::onItemChanged(QTreeWidgetItem *item, int column)
{
    if (m_updating || column != 0 || item == nullptr)
        return;
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        const Qt::CheckState state = item->checkState(0);
        setPathChecked(pathOf(item), state == Qt::Checked);
        updateChildren(item, state);
        updateParents(item);
    }
    m_tree->viewport()->update();
    Q_EMIT selectionChanged();
}

void FileBrowserWidget::updateChildren(QTreeWidgetItem *item, Qt::CheckState state)
{
    for (int i = 0; i < item->childCount(); ++i) {
        QTreeWidgetItem *child = item->child(i);
        child->setCheckState(0, state);
        setPathChecked(pathOf(child), state == Qt::Checked);
        updateChildren(child, state);
    }
}

void FileBrowserWidget::updateParents(const QTreeWidgetItem *item)
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

void FileBrowserWidget::setPathChecked(const QString &path, bool checked)
{
    if (path.isEmpty())
        return;
    if (checked)
        m_checkedPaths.insert(path);
    else
        m_checkedPaths.remove(path);
}

QStringList FileBrowserWidget::selectedPaths() const
{
    return m_checkedPaths.values();
}

int FileBrowserWidget::selectedCount() const
{
    return static_cast<int>(m_checkedPaths.size());
}

void FileBrowserWidget::selectAll()
{
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
            QTreeWidgetItem *item = m_tree->topLevelItem(i);
            item->setCheckState(0, Qt::Checked);
            updateChildren(item, Qt::Checked);
            setPathChecked(pathOf(item), true);
        }
    }
    Q_EMIT selectionChanged();
}

void FileBrowserWidget::clearSelection()
{
    {
        const QScopedValueRollback<bool> guard(m_updating, true);
        m_checkedPaths.clear();
        for (QTreeWidgetItemIterator item(m_tree); *item != nullptr; ++item)
            (*item)->setCheckState(0, Qt::Unchecked);
        for (int i = 0; i < m_shortcutList->count(); ++i) {
            QListWidgetItem *entry = m_shortcutList->item(i);
            if (entry->flags().testFlag(Qt::ItemIsUserCheckable))
                entry->setCheckState(Qt::Unchecked);
        }
    }
    Q_EMIT selectionChanged();
}

} // namespace Zandrove
