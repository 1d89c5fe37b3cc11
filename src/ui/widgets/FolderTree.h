#pragma once

#include <QSet>
#include <QStringList>
#include <QTreeWidget>

namespace Zandrove {

/// A tree of folders to tick. A folder is read when it is first opened, at most 100 subfolders each, on the
/// calling thread. What it gives is the set of ticked paths; a ticked folder stands for all that is in it,
/// whether it was opened or not. The ticks outlive what the tree shows, although new roots start unticked.
class FolderTree final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit FolderTree(QWidget *parent = nullptr);

    /// Adds a folder at the top, closed and unread.
    void addRoot(const QString &label, const QString &path, const QIcon &icon);
    /// Shows one folder in place of all that is there, open.
    void showOnly(const QString &label, const QString &path, const QIcon &icon);

    /// The ticked folders, absolute, in no order.
    [[nodiscard]] QStringList tickedPaths() const { return m_ticked.values(); }
    [[nodiscard]] int tickedCount() const { return static_cast<int>(m_ticked.size()); }

    /// Ticks the roots, with what is loaded below them.
    void tickAll();
    /// Forgets every tick, also of folders that are not shown at present.
    void untickAll();

Q_SIGNALS:
    void ticksChanged();

private:
    [[nodiscard]] static QTreeWidgetItem *createItem(const QString &label, const QString &path,
                                                     const QIcon &icon);
    void onExpanded(QTreeWidgetItem *item);
    void onItemChanged(QTreeWidgetItem *item, int column);
    void loadSubfolders(QTreeWidgetItem *parent, const QString &path);
    void updateChildren(QTreeWidgetItem *item, Qt::CheckState state);
    static void updateParents(const QTreeWidgetItem *item);
    void setPathTicked(const QString &path, bool ticked);

    QSet<QString> m_ticked;
    bool m_updating = false; ///< while the tree itself changes boxes
};

} // namespace Zandrove
