#include "ui/widgets/FileBrowserWidget.h"

#include "support/Utilities.h"
#include "ui/Theme.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/FolderTree.h"
#include "ui/widgets/KeyboardFocus.h"
#include "ui/widgets/Labels.h"

#include <QDir>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace Colour = Theme::Colour;

namespace {

constexpr int PathRole = Qt::UserRole;
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
    connect(m_tree, &FolderTree::ticksChanged, this, &FileBrowserWidget::selectionChanged);
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
    m_tree = new FolderTree;
    m_tree->setAccessibleName(tr("Select folders to transfer"));
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

void FileBrowserWidget::fillShortcuts()
{
    using Paths = QStandardPaths;
    const auto addLocation = [this](const QString &label, Paths::StandardLocation location,
                                    const QString &iconWord) {
        const QString path = Paths::writableLocation(location);
        if (!path.isEmpty() && QDir(path).exists())
            addShortcut(label, path, iconWord);
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
        m_tree->addRoot(label + room, root, icon);
    }
}

void FileBrowserWidget::onShortcutClicked(QListWidgetItem *item)
{
    const QString path = item->data(PathRole).toString();
    if (path == thisPcMarker())
        loadDrives();
    else if (!path.isEmpty())
        m_tree->showOnly(item->text(), path, item->icon());
}

QStringList FileBrowserWidget::selectedPaths() const
{
    return m_tree->tickedPaths();
}

int FileBrowserWidget::selectedCount() const
{
    return m_tree->tickedCount();
}

void FileBrowserWidget::selectAll()
{
    m_tree->tickAll();
}

void FileBrowserWidget::clearSelection()
{
    m_tree->untickAll();
}

} // namespace Zandrove
