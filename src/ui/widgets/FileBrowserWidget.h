#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QWidget>

class QIcon;
class QListWidget;
class QListWidgetItem;
class QTreeWidget;
class QTreeWidgetItem;

namespace Zandrove {

/// A tree of folders to tick, with a list of the usual places beside it. Folders are read when they are first
/// opened, at most 100 subfolders each. What it gives is the set of ticked paths; a ticked folder stands for
/// all that is in it, whether it was opened or not. The ticks survive a change of what the tree shows.
class FileBrowserWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit FileBrowserWidget(QWidget *parent = nullptr);

    /// The ticked folders, absolute, in no order.
    [[nodiscard]] QStringList selectedPaths() const;
    [[nodiscard]] int selectedCount() const;

    /// Ticks everything that the tree shows at its top, with what is loaded below.
    void selectAll();
    /// Forgets every tick, also of folders that the tree does not show at present.
    void clearSelection();

Q_SIGNALS:
    void selectionChanged();

private Q_SLOTS:
    void onShortcutClicked(QListWidgetItem *item);
    void onFolderExpanded(QTreeWidgetItem *item);
    void onItemChanged(QTreeWidgetItem *item, int column);
    void loadDrives();

private:
    void setupUi();
    [[nodiscard]] QWidget *createShortcutPane();
    [[nodiscard]] QWidget *createTreePane();
    [[nodiscard]] QWidget *createToolbar();
    void setupTree();
    void fillShortcuts();
    void addShortcut(const QString &label, const QString &path, const QString &iconWord);
    [[nodiscard]] static QTreeWidgetItem *createFolderItem(const QString &label, const QString &path,
                                                           const QIcon &icon);
    void loadSubfolders(QTreeWidgetItem *parent, const QString &path);
    void updateChildren(QTreeWidgetItem *item, Qt::CheckState state);
    static void updateParents(const QTreeWidgetItem *item);
    void setPathChecked(const QString &path, bool checked);

    QListWidget *m_shortcutList = nullptr;
    QTreeWidget *m_tree = nullptr;
    QHash<QString, QString> m_shortcutPaths;
    QSet<QString> m_checkedPaths;
    bool m_updating = false;
};

} // namespace Zandrove
