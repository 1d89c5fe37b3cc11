#pragma once

#include <QStringList>
#include <QWidget>

class QListWidget;
class QListWidgetItem;

namespace Zandrove {

class FolderTree;

/// The tree of the folders to tick, with the places that it can show: the drives, and a list of the usual
/// folders beside it. The ticks survive a change of place.
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
    void loadDrives();

private:
    void setupUi();
    [[nodiscard]] QWidget *createShortcutPane();
    [[nodiscard]] QWidget *createTreePane();
    [[nodiscard]] QWidget *createToolbar();
    void fillShortcuts();
    void addShortcut(const QString &label, const QString &path, const QString &iconWord);

    QListWidget *m_shortcutList = nullptr;
    FolderTree *m_tree = nullptr;
};

} // namespace Zandrove
