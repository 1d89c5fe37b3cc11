#pragma once

#include "core/common/Records.h"

#include <QList>
#include <QStringList>
#include <QWidget>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QTabWidget;
class QVBoxLayout;

namespace Zandrove {

class AccountListItem;
class AppListItem;
class FileBrowserWidget;
class FolderListItem;
class SettingListItem;
class TransferEngine;

/// The page of the Old PC where the user ticks what is to go: applications, folders, settings. Each change of
/// a tick is written to the engine at once, which always holds the current selection.
class SelectionPage final : public QWidget
{
    Q_OBJECT

public:
    /// `engine` outlives the events that the page handles.
    explicit SelectionPage(TransferEngine *engine, QWidget *parent = nullptr);

    /// Builds the rows anew for what a scan found, with the ticks that a fresh result has: accounts only. The
    /// ticks of the file browser stay. The engine hears of nothing until the user changes a tick.
    void setScanResult(const ScanResult &result);

    /// The ticked folders.
    [[nodiscard]] QStringList selectedPaths() const;
    /// Whether there is anything to send; accounts do not count.
    [[nodiscard]] bool hasSelection() const;

Q_SIGNALS:
    void selectionChanged();

private Q_SLOTS:
    void updateSelection();
    void onSelectAllApps(bool checked);
    void onSelectAllFolders(bool checked);
    void onSelectAllSettings(bool checked);

private:
    // SelectionPageLayout.cpp
    void setupUi();
    [[nodiscard]] QBoxLayout *createHeader();
    [[nodiscard]] QWidget *createAppsTab();
    [[nodiscard]] QWidget *createFilesTab();
    [[nodiscard]] QWidget *createSettingsTab();
    [[nodiscard]] QBoxLayout *createSettingsHeading();
    [[nodiscard]] QWidget *createConflictBar();

    // SelectionPage.cpp
    void clearRows();
    template <typename Row>
    void appendRow(Row *row, QList<Row *> &rows, QWidget *before);
    void addApps();
    void addAccounts();
    void addSettings();
    void updateCounts();
    void setTabTitle(QWidget *tab, const QString &title);
    [[nodiscard]] QList<int> checkedApps() const;
    [[nodiscard]] int checkedPathCount() const;

    FileBrowserWidget *m_fileBrowser = nullptr;
    TransferEngine *m_engine;
    QTabWidget *m_tabs = nullptr;
    QLabel *m_totalLabel = nullptr;
    QWidget *m_appsTab = nullptr;
    QCheckBox *m_selectAllApps = nullptr;
    QVBoxLayout *m_appLayout = nullptr;
    QList<AppListItem *> m_appItems;
    QWidget *m_filesTab = nullptr;
    QList<FolderListItem *> m_folderItems;
    QWidget *m_settingsTab = nullptr;
    QVBoxLayout *m_accountLayout = nullptr;
    QVBoxLayout *m_settingLayout = nullptr;
    QCheckBox *m_selectAllSettings = nullptr;
    QList<AccountListItem *> m_accountItems;
    QList<SettingListItem *> m_settingItems;
    QComboBox *m_fileConflictCombo = nullptr;
    QComboBox *m_appConflictCombo = nullptr;
    ScanResult m_scanResult;
};

} // namespace Zandrove
