// TransferEngine: the inventory of the Old PC.

#include "core/engine/Log.h"
#include "core/engine/TransferEngine.h"
#include "inventory/AccountScanner.h"
#include "inventory/AppScanner.h"
#include "inventory/FileScanner.h"
#include "inventory/SettingScanner.h"

#include <QTimer>

#include <chrono>

using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr int Scanners = 4;
constexpr auto ResultDelay = 100ms; // lets the last progress be seen before the result

template <typename Record>
void dropUnnamed(QList<Record> &records, QString Record::*name)
{
    records.removeIf([name](const Record &record) { return (record.*name).isEmpty(); });
}

} // namespace

void TransferEngine::startScan()
{
    if (m_scanning) {
        Q_EMIT warning(tr("Scan already in progress"));
        return;
    }
    if (m_role == NewPC && !isConnected()) {
        Q_EMIT scanFailed(tr("Not connected to source PC"));
        return;
    }
    m_scanning = true;
    ++m_scanNumber;
    m_completedScans = 0;
    clearScanResult();
    m_scanResult.totalSize = 0;
    m_scanResult.totalFiles = 0;
    m_scanResult.scanTime = QDateTime::currentDateTime();
    m_appsFound = 0;
    m_accountsFound = 0;
    Q_EMIT scanStarted();
    Q_EMIT info(tr("Starting system scan..."));
    startScanners();
}

/// Whoever hears of the progress may cancel the scan, and even begin another, before a scanner returns.
void TransferEngine::startScanners()
{
    const quint64 scan = m_scanNumber;
    const auto startNext = [this, scan](auto *scanner) {
        if (m_scanning && m_scanNumber == scan)
            scanner->start();
    };
    startNext(m_appScanner);
    startNext(m_fileScanner);
    startNext(m_accountScanner);
    startNext(m_settingScanner);
}

void TransferEngine::cancelScan()
{
    if (!m_scanning)
        return;
    m_appScanner->cancel();
    m_fileScanner->cancel();
    m_accountScanner->cancel();
    m_settingScanner->cancel();
    m_scanning = false;
    Q_EMIT scanCancelled();
    Q_EMIT info(tr("Scan cancelled"));
}

/// The totals stay.
void TransferEngine::clearScanResult()
{
    m_scanResult.apps.clear();
    m_scanResult.folders.clear();
    m_scanResult.accounts.clear();
    m_scanResult.settings.clear();
    m_scanResult.scanTime = QDateTime();
}

void TransferEngine::onScanProgress(int percent, const QString &item)
{
    m_appsFound = m_appScanner->appsFound();
    Q_EMIT scanProgress(percent, item, m_appsFound, 0, m_accountsFound);
}

void TransferEngine::onScanError(const QString &message)
{
    Q_EMIT warning(tr("Scan error: %1").arg(message));
}

void TransferEngine::onAppScanFinished(const QList<AppInfo> &apps)
{
    m_scanResult.apps = apps;
    qCDebug(logEngine) << "App scan finished:" << apps.size() << "apps found";
    joinScans();
}

void TransferEngine::onFileScanFinished(const QList<FolderInfo> &folders)
{
    m_scanResult.folders = folders;
    qCDebug(logEngine) << "File scan finished:" << folders.size() << "folders found";
    joinScans();
}

void TransferEngine::onAccountScanFinished(const QList<AccountInfo> &accounts)
{
    m_scanResult.accounts = accounts;
    qCDebug(logEngine) << "Account scan finished:" << accounts.size() << "accounts found";
    joinScans();
}

void TransferEngine::onSettingScanFinished(const QList<SettingInfo> &settings)
{
    m_scanResult.settings = settings;
    qCDebug(logEngine) << "Setting scan finished:" << settings.size() << "settings found";
    joinScans();
}

void TransferEngine::joinScans()
{
    ++m_completedScans;
    qCDebug(logEngine) << "Scan complete count:" << m_completedScans << "/4";
    if (m_completedScans < Scanners)
        return;
    m_scanning = false;

    m_scanResult.totalSize = 0;
    m_scanResult.totalFiles = 0;
    for (const AppInfo &app : std::as_const(m_scanResult.apps))
        m_scanResult.totalSize += app.size;
    for (const FolderInfo &folder : std::as_const(m_scanResult.folders)) {
        m_scanResult.totalSize += folder.totalSize;
        m_scanResult.totalFiles += folder.fileCount;
    }
    dropUnnamed(m_scanResult.apps, &AppInfo::name);
    dropUnnamed(m_scanResult.folders, &FolderInfo::path);
    dropUnnamed(m_scanResult.accounts, &AccountInfo::userName);
    dropUnnamed(m_scanResult.settings, &SettingInfo::id);
    qCDebug(logEngine) << "Scan completed - Apps:" << m_scanResult.apps.size()
                       << "Folders:" << m_scanResult.folders.size()
                       << "Accounts:" << m_scanResult.accounts.size()
                       << "Settings:" << m_scanResult.settings.size();
    if (m_scanResult.scanTime.isNull())
        m_scanResult.scanTime = QDateTime::currentDateTime();

    QTimer::singleShot(ResultDelay, this, [this, scan = m_scanNumber] {
        if (m_scanNumber == scan)
            Q_EMIT scanCompleted(m_scanResult);
    });
}

} // namespace Zandrove
