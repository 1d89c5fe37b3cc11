#include "ui/pages/SelectionPage.h"

#include "core/engine/TransferEngine.h"
#include "support/Utilities.h"
#include "ui/Log.h"
#include "ui/pages/AppOffer.h"
#include "ui/widgets/AccountListItem.h"
#include "ui/widgets/AppListItem.h"
#include "ui/widgets/FileBrowserWidget.h"
#include "ui/widgets/FolderListItem.h"
#include "ui/widgets/SettingListItem.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Zandrove {

namespace {

/// Property of an application's row: its position in the scan result.
constexpr auto OriginalIndex = "originalIndex";

template <typename Row>
void deleteRows(QList<Row *> &rows)
{
    qDeleteAll(std::exchange(rows, {}));
}

template <typename Row>
QList<int> checkedPositions(const QList<Row *> &rows)
{
    QList<int> positions;
    for (int i = 0; i < rows.size(); ++i) {
        if (rows[i]->isChecked())
            positions.append(i);
    }
    return positions;
}

template <typename Row>
bool anyChecked(const QList<Row *> &rows)
{
    return std::any_of(rows.cbegin(), rows.cend(), [](const Row *row) { return row->isChecked(); });
}

/// What of a row takes the focus.
QWidget *tabStop(const QWidget *row)
{
    return row->findChild<QCheckBox *>();
}

/// Where Tab comes from to `widget`.
QWidget *stopBefore(QWidget *widget)
{
    do
        widget = widget->previousInFocusChain();
    while (!(widget->focusPolicy() & Qt::TabFocus));
    return widget;
}

void untickSilently(QCheckBox *box)
{
    const QSignalBlocker blocker(box);
    box->setChecked(false);
}

} // namespace

SelectionPage::SelectionPage(TransferEngine *engine, QWidget *parent)
    : QWidget(parent)
    , m_engine(engine)
{
    setupUi();
    connect(m_engine, &TransferEngine::scanCompleted, this, &SelectionPage::setScanResult);
    connect(m_selectAllApps, &QCheckBox::toggled, this, &SelectionPage::onSelectAllApps);
    connect(m_selectAllSettings, &QCheckBox::toggled, this, &SelectionPage::onSelectAllSettings);
    connect(m_fileBrowser, &FileBrowserWidget::selectionChanged, this, &SelectionPage::updateSelection);
}

void SelectionPage::setScanResult(const ScanResult &result)
{
    if (!m_appLayout || !m_accountLayout || !m_settingLayout) {
        qCDebug(logUi) << "Warning: Some layouts not initialized!";
        return;
    }
    m_scanResult = result;
    setUpdatesEnabled(false);
    clearRows();
    addApps();
    addAccounts();
    addSettings();
    untickSilently(m_selectAllApps);
    untickSilently(m_selectAllSettings);
    updateCounts();
    setUpdatesEnabled(true);
}

void SelectionPage::clearRows()
{
    deleteRows(m_appItems);
    deleteRows(m_folderItems);
    deleteRows(m_accountItems);
    deleteRows(m_settingItems);
}

/// Tab goes through the rows as they stand on the page, the first of them behind `before`.
template <typename Row>
void SelectionPage::appendRow(Row *row, QList<Row *> &rows, QWidget *before)
{
    connect(row, &Row::checkStateChanged, this, &SelectionPage::updateSelection);
    setTabOrder(rows.isEmpty() ? before : tabStop(rows.constLast()), tabStop(row));
    rows.append(row);
}

void SelectionPage::addApps()
{
    for (const OfferedApp &offered : offeredApps(m_scanResult.apps)) {
        auto *item = new AppListItem(m_appLayout->parentWidget());
        item->setAppInfo(offered.app);
        item->setProperty(OriginalIndex, offered.originalIndex);
        item->setChecked(false);
        m_appLayout->insertWidget(m_appLayout->count() - 1, item);
        appendRow(item, m_appItems, m_selectAllApps);
    }
}

void SelectionPage::addAccounts()
{
    QWidget *const before = stopBefore(m_selectAllSettings);
    for (const AccountInfo &account : std::as_const(m_scanResult.accounts)) {
        auto *item = new AccountListItem(m_accountLayout->parentWidget());
        item->setAccountInfo(account);
        item->setChecked(true);
        m_accountLayout->addWidget(item);
        appendRow(item, m_accountItems, before);
    }
}

void SelectionPage::addSettings()
{
    for (const SettingInfo &setting : std::as_const(m_scanResult.settings)) {
        auto *item = new SettingListItem(m_settingLayout->parentWidget());
        item->setSettingInfo(setting);
        item->setChecked(false);
        m_settingLayout->addWidget(item);
        appendRow(item, m_settingItems, m_selectAllSettings);
    }
}

QStringList SelectionPage::selectedPaths() const
{
    return m_fileBrowser ? m_fileBrowser->selectedPaths() : QStringList();
}

int SelectionPage::checkedPathCount() const
{
    return m_fileBrowser ? m_fileBrowser->selectedCount() : 0;
}

bool SelectionPage::hasSelection() const
{
    return anyChecked(m_appItems) || checkedPathCount() > 0 || anyChecked(m_settingItems);
}

QList<int> SelectionPage::checkedApps() const
{
    QList<int> indexes;
    for (const AppListItem *item : m_appItems) {
        if (!item->isChecked())
            continue;
        indexes.append(item->property(OriginalIndex).toInt());
        qCDebug(logUi) << "Selected app:" << item->appInfo().name << "originalIndex:" << indexes.constLast();
    }
    return indexes;
}

void SelectionPage::updateSelection()
{
    m_engine->setSelectedApps(checkedApps());
    m_engine->setSelectedAccounts(checkedPositions(m_accountItems));
    m_engine->setSelectedSettings(checkedPositions(m_settingItems));
    if (m_fileBrowser)
        m_engine->setSelectedPaths(selectedPaths());
    updateCounts();
    Q_EMIT selectionChanged();
}

void SelectionPage::updateCounts()
{
    qint64 total = 0;
    int apps = 0;
    for (const AppListItem *item : std::as_const(m_appItems)) {
        if (item->isChecked()) {
            total += item->appInfo().size;
            ++apps;
        }
    }
    m_totalLabel->setText(tr("Total: %1").arg(formatSize(total)));
    setTabTitle(m_appsTab, tr("Applications (%1)").arg(apps));
    setTabTitle(m_filesTab, tr("Files (%1)").arg(checkedPathCount()));
    setTabTitle(m_settingsTab, tr("Settings (%1)").arg(checkedPositions(m_settingItems).size()));
}

/// A tab bar lays itself out anew for a title, also for the one that it has.
void SelectionPage::setTabTitle(QWidget *tab, const QString &title)
{
    const int index = m_tabs->indexOf(tab);
    if (m_tabs->tabText(index) != title)
        m_tabs->setTabText(index, title);
}

void SelectionPage::onSelectAllApps(bool checked)
{
    for (AppListItem *item : std::as_const(m_appItems))
        item->setChecked(checked);
}

void SelectionPage::onSelectAllFolders(bool checked)
{
    if (checked)
        m_fileBrowser->selectAll();
    else
        m_fileBrowser->clearSelection();
}

void SelectionPage::onSelectAllSettings(bool checked)
{
    for (SettingListItem *item : std::as_const(m_settingItems))
        item->setChecked(checked);
}

} // namespace Zandrove
