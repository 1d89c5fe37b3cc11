// TransferEngine: selection, transfer, and the ways back to another round.

#include "core/engine/Log.h"
#include "core/engine/TransferEngine.h"
#include "peer/NetworkManager.h"
#include "pipeline/MigrationManager.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

template <typename Record>
void selectByIndex(QList<Record> &records, const QList<int> &indexes)
{
    for (int index = 0; index < records.size(); ++index)
        records[index].selected = indexes.contains(index);
}

template <typename Record>
QList<Record> selectedOf(const QList<Record> &records)
{
    QList<Record> selected;
    std::copy_if(records.cbegin(), records.cend(), std::back_inserter(selected),
                 [](const Record &record) { return record.selected; });
    return selected;
}

/// Percent of all counted items that succeeded; skipped ones do not count. 100 when
/// there is nothing to count.
double successRate(const MigrationReport &report)
{
    const int succeeded = report.filesSuccess + report.appsSuccess + report.settingsSuccess;
    const int all = succeeded + report.filesFailed + report.appsFailed + report.settingsFailed;
    return all == 0 ? 100.0 : succeeded * 100.0 / all;
}

} // namespace

void TransferEngine::setSelectedApps(const QList<int> &indexes)
{
    selectByIndex(m_scanResult.apps, indexes);
    Q_EMIT stateChanged();
}

void TransferEngine::setSelectedAccounts(const QList<int> &indexes)
{
    selectByIndex(m_scanResult.accounts, indexes);
    Q_EMIT stateChanged();
}

void TransferEngine::setSelectedSettings(const QList<int> &indexes)
{
    selectByIndex(m_scanResult.settings, indexes);
    Q_EMIT stateChanged();
}

void TransferEngine::setSelectedPaths(const QStringList &paths)
{
    m_selectedPaths = paths;
    qCDebug(logEngine) << "TransferEngine: Selected" << paths.size() << "folder paths";
    Q_EMIT stateChanged();
}

int TransferEngine::selectedCount() const
{
    return int(selectedOf(m_scanResult.apps).size() + selectedOf(m_scanResult.folders).size() +
               selectedOf(m_scanResult.accounts).size() + selectedOf(m_scanResult.settings).size() +
               m_selectedPaths.size());
}

QList<FolderInfo> TransferEngine::foldersToSend() const
{
    QList<FolderInfo> folders = selectedOf(m_scanResult.folders);
    for (const QString &path : m_selectedPaths) {
        FolderInfo folder;
        folder.name = QFileInfo(path).fileName();
        folder.path = path;
        folder.selected = true;
        folders.append(folder);
    }
    return folders;
}

/// The state in which every run begins.
void TransferEngine::beginTransfer()
{
    m_transferring = true;
    m_paused = false;
    m_report = MigrationReport();
    m_report.startTime = QDateTime::currentDateTime();
}

RunSummary TransferEngine::summary() const
{
    return m_migrationManager->summary();
}

void TransferEngine::onRunEnded(const RunSummary &summary)
{
    if (summary.end == RunEnd::LinkLost) {
        m_transferring = false;
        m_paused = false;
    }
    Q_EMIT runEnded(summary);
}

void TransferEngine::configureMigration(int role)
{
    m_migrationManager->setNetworkManager(m_networkManager);
    m_migrationManager->setRole(role);
    m_migrationManager->setConflictConfig(m_conflictConfig);
    m_migrationManager->setDestinationRoot(m_destinationRoot);
}

void TransferEngine::startTransfer()
{
    if (m_transferring) {
        Q_EMIT warning(tr("Transfer already in progress"));
        return;
    }
    if (!m_networkManager->isAccepted() || m_scanning || selectedCount() == 0) {
        Q_EMIT transferFailed(tr("Cannot start transfer. Check connection and selection."));
        return;
    }
    beginTransfer();
    const QList<AppInfo> apps = selectedOf(m_scanResult.apps);
    const QList<FolderInfo> folders = foldersToSend();
    const QList<AccountInfo> accounts = selectedOf(m_scanResult.accounts);
    const QList<SettingInfo> settings = selectedOf(m_scanResult.settings);
    qCDebug(logEngine) << "Starting transfer - Apps:" << apps.size() << "Folders:" << folders.size()
                       << "Accounts:" << accounts.size() << "Settings:" << settings.size();
    configureMigration(m_role);
    if (m_migrationManager->isMigrating())
        m_migrationManager->resetAndListen(); // a run that nobody here waits for any more
    m_migrationManager->start(apps, folders, accounts, settings);
    Q_EMIT transferStarted();
    Q_EMIT info(tr("Transfer started - %1 items selected").arg(selectedCount()));
}

void TransferEngine::startReceiving()
{
    beginTransfer();
    qCDebug(logEngine) << "Starting to receive files...";
    configureMigration(NewPC);
    m_migrationManager->resetAndListen();
    m_migrationManager->startReceiving();
    Q_EMIT transferStarted();
    Q_EMIT info(tr("Waiting to receive files..."));
}

void TransferEngine::onWaiting()
{
    beginTransfer();
    Q_EMIT transferStarted();
    Q_EMIT info(tr("Waiting to receive files..."));
}

bool TransferEngine::isRunUnderWay() const
{
    return m_migrationManager->isUnderWay();
}

bool TransferEngine::isApplyingSettings() const
{
    return m_migrationManager->isApplyingSettings();
}

void TransferEngine::pauseTransfer()
{
    if (!m_transferring || m_paused)
        return;
    qCDebug(logEngine) << "TransferEngine::pauseTransfer()";
    m_migrationManager->pause();
    m_paused = true;
    Q_EMIT transferPaused();
    Q_EMIT info(tr("Transfer paused"));
}

void TransferEngine::resumeTransfer()
{
    if (!m_transferring || !m_paused)
        return;
    qCDebug(logEngine) << "TransferEngine::resumeTransfer()";
    m_migrationManager->resume();
    m_paused = false;
    Q_EMIT transferResumed();
    Q_EMIT info(tr("Transfer resumed"));
}

void TransferEngine::cancelTransfer()
{
    if (!m_transferring)
        return;
    qCDebug(logEngine) << "[TransferEngine] Sending cancel notification to peer...";
    m_migrationManager->sendCancelNotification(
        {{u"type"_s, u"transfer_cancelled"_s}, {u"reason"_s, u"user_cancelled"_s}});
    m_migrationManager->cancel();
    // The sender sits in its list: only this reaches it.
    if (m_role == OldPC)
        m_migrationManager->resetAndListen();
    m_transferring = false;
    m_paused = false;
    Q_EMIT transferCancelled();
    Q_EMIT info(tr("Transfer cancelled"));
}

void TransferEngine::retryFailed()
{
    if (!m_transferring)
        return;
    m_migrationManager->retryFailed();
    Q_EMIT info(tr("Retrying failed items..."));
}

void TransferEngine::onNewTransferStarted()
{
    qCDebug(logEngine) << "TransferEngine: New transfer started from peer";
    beginTransfer();
    Q_EMIT newTransferStarted();
    Q_EMIT stateChanged();
}

/// The New PC arms itself again and goes on counting as receiving.
void TransferEngine::onPeerCancelled()
{
    m_paused = false;
    if (m_role == OldPC)
        m_transferring = false;
    Q_EMIT peerCancelled();
}

void TransferEngine::onTransferReset()
{
    if (m_role == OldPC) {
        m_paused = false;
        m_transferring = false;
    }
    Q_EMIT transferReset();
}

void TransferEngine::setPausedByPeer(bool paused)
{
    m_paused = paused;
    if (paused)
        Q_EMIT pausedByPeer();
    else
        Q_EMIT resumedByPeer();
}

void TransferEngine::onMigrationProgress(const TransferProgress &progress)
{
    m_progress = progress;
    Q_EMIT transferProgressChanged(progress);
}

void TransferEngine::onMigrationCompleted(const MigrationReport &report)
{
    m_report = report;
    m_report.endTime = QDateTime::currentDateTime();
    m_transferring = false;
    Q_EMIT transferCompleted(report);
    Q_EMIT info(
        tr("Transfer completed - Success rate: %1%").arg(QString::number(successRate(report), 'f', 1)));
    Q_EMIT stateChanged();
}

void TransferEngine::onMigrationFailed(const QString &reason)
{
    m_transferring = false;
    m_paused = false;
    Q_EMIT transferFailed(reason);
    Q_EMIT error(tr("Transfer failed: %1").arg(reason));
    Q_EMIT stateChanged();
}

void TransferEngine::onFileTransferStarted(const QString &fileName)
{
    Q_EMIT fileTransferStarted(fileName);
}

void TransferEngine::onFileTransferProgress(const QString &fileName, int percent)
{
    Q_EMIT fileTransferProgress(fileName, percent);
}

void TransferEngine::onFileTransferCompleted(const QString &fileName)
{
    Q_EMIT fileTransferCompleted(fileName);
}

void TransferEngine::onFileTransferFailed(const QString &fileName, const QString &reason)
{
    Q_EMIT fileTransferFailed(fileName, reason);
}

void TransferEngine::reset()
{
    cancelScan();
    cancelTransfer();
    if (m_migrationManager->isMigrating())
        m_migrationManager->resetAndListen();
    if (isConnected())
        disconnectFromPeer();
    clearAll();
    Q_EMIT info(tr("Engine reset"));
    Q_EMIT stateChanged();
}

void TransferEngine::clearAll()
{
    m_connectedPC = PCInfo();
    ++m_scanNumber; // a result that is still to be told would be an empty one
    clearScanResult();
    m_progress = TransferProgress();
    m_report = MigrationReport();
    m_verifyCode = generateVerifyCode();
    m_selectedPaths.clear();
}

void TransferEngine::resetForNewConnection()
{
    qCDebug(logEngine) << "[TransferEngine] Resetting for new connection...";
    m_transferring = false;
    m_paused = false;
    if (m_role == NewPC)
        m_migrationManager->resetAndListen();
    Q_EMIT info(tr("Ready for new connection"));
}

void TransferEngine::resetForNewReceive()
{
    qCDebug(logEngine) << "TransferEngine::resetForNewReceive()";
    m_progress = TransferProgress();
    beginTransfer();
}

void TransferEngine::resetTransfer()
{
    qCDebug(logEngine) << "TransferEngine::resetTransfer() - keeping connection";
    m_transferring = false;
    m_migrationManager->cancel();
    if (isConnected())
        m_networkManager->sendCommand(MessageType::TransferReset);
    m_progress = TransferProgress();
    m_selectedPaths.clear();
    m_migrationManager->resetAndListen();
    Q_EMIT transferCancelled();
    Q_EMIT stateChanged();
}

void TransferEngine::notifyPeerReadyForNew()
{
    qCDebug(logEngine) << "TransferEngine::notifyPeerReadyForNew()";
    if (isConnected())
        m_networkManager->sendCommand(MessageType::TransferReset);
}

void TransferEngine::sendSessionEnd()
{
    qCDebug(logEngine) << "TransferEngine::sendSessionEnd()";
    m_migrationManager->endSession();
    m_networkManager->sendSessionEnd();
}

} // namespace Zandrove
