#include "pipeline/MigrationManager.h"

#include "appmigration/AppMessages.h"
#include "peer/NetworkManager.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/Log.h"
#include "pipeline/ReceivedApps.h"
#include "pipeline/TaskList.h"
#include "pipeline/TransferMessages.h"
#include "support/Json.h"

#include <QThread>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

using Protocol::MessageType;

MigrationManager::MigrationManager(QObject *parent)
    : QObject(parent)
    , m_receivedApps(new ReceivedApps(this))
{
    connect(m_receivedApps, &ReceivedApps::installProgress, this, &MigrationManager::appInstallProgress);
    connect(m_receivedApps, &ReceivedApps::installFinished, this, &MigrationManager::appInstallFinished);
    connect(m_receivedApps, &ReceivedApps::installed, this, &MigrationManager::onAppInstalled);
}

MigrationManager::~MigrationManager()
{
    if (m_migrating)
        cancel();
    stopWorkers();
    if (m_networkManager)
        m_networkManager->setReadGate({});
}

void MigrationManager::setNetworkManager(NetworkManager *networkManager)
{
    if (m_networkManager && m_networkManager != networkManager) {
        QObject::disconnect(m_networkManager, nullptr, this, nullptr);
        m_networkManager->setReadGate({});
    }
    m_networkManager = networkManager;
    if (!m_networkManager)
        return;
    connect(m_networkManager, &NetworkManager::commandReceived, this,
            &MigrationManager::onLinkCommandReceived, Qt::UniqueConnection);
    m_networkManager->setReadGate([this] { return mayReadLink(); });
}

void MigrationManager::setRole(int role)
{
    if (role != m_role)
        ++m_rearmTicket;
    m_role = role;
}

void MigrationManager::start(const QList<AppInfo> &apps, const QList<FolderInfo> &folders,
                             const QList<AccountInfo> &accounts, const QList<SettingInfo> &settings)
{
    if (m_migrating)
        return;
    m_migrating = true;
    m_startTime = QDateTime::currentDateTime();
    m_apps = apps;
    m_folders = folders;
    m_accounts = accounts;
    m_settings = settings;
    clearRunState();
    stopWorkers();
    setupConnections();
    if (m_role == OldPC)
        m_runLink = m_networkManager ? m_networkManager->acceptedLink() : 0;
    Q_EMIT started();
    if (m_role == NewPC)
        startEverythingReceiving();
    else
        startSending();
}

void MigrationManager::startSending()
{
    const QList<AppInfo> apps = appsToMigrate();
    hasAppsToMigrate = !apps.isEmpty();
    if (!hasAppsToMigrate) {
        appMigrationDone = true;
        appFilesAllQueued = true;
    }
    const QList<SettingInfo> settings = settingsToMigrate();
    if (settings.isEmpty())
        settingPhaseDone = true;
    QList<FileTransferTask> tasks = buildTaskList(m_folders);
    qCDebug(logPipeline) << "Starting migration:";
    qCDebug(logPipeline) << "  - Folder files:" << tasks.size();
    qCDebug(logPipeline) << "  - Apps:" << apps.size();
    qCDebug(logPipeline) << "  - Settings:" << settings.size();
    QMetaObject::invokeMethod(
        m_senderWorker,
        [sender = m_senderWorker, tasks = std::move(tasks)]() mutable {
            sender->startSending(std::move(tasks));
        },
        Qt::QueuedConnection);
    startAppMigration(apps);
    startSettingMigration(settings);
}

void MigrationManager::startReceiving()
{
    if (m_migrating)
        return;
    m_role = NewPC;
    m_migrating = true;
    m_startTime = QDateTime::currentDateTime();
    settingPhaseDone = false;
    m_receivedApps->forgetFiles();
    clearReportCounters();
    stopWorkers();
    setupConnections();
    Q_EMIT started();
    invokeStartReceiving();
    beginReceivingSettings();
}

/// What a fresh run must not find of the one before. The flags of the file and application lanes stay: only
/// resetAndListen clears those.
void MigrationManager::clearRunState()
{
    clearAppQueue();
    m_foldersPhaseDone = false;
    m_appFilePhaseDone = false;
    sendingAppPhase = false;
    settingPhaseDone = false;
    m_nextTaskId = 0;
    m_listAnnounced = false;
    m_early.clear();
    m_accumulated = {};
    clearReportCounters();
}

void MigrationManager::clearAppQueue()
{
    m_pendingAppTasks.clear();
    m_delayedAppEnds.clear();
    appFilesQueued = 0;
    m_appFilesMissing = 0;
    appFilesAllQueued = false;
    m_receivedApps->forgetFiles();
}

void MigrationManager::clearReportCounters()
{
    storeCounts({});
    m_appsSuccess = m_appsFailed = m_appsSkipped = 0;
    m_settingsApplied = m_settingsFailed = 0;
    m_paused = false;
    m_refusalLogged = false;
    m_runLink.reset();
    m_completing = false;
}

void MigrationManager::storeCounts(const FileCounts &counts)
{
    m_filesSuccess = counts.success;
    m_filesFailed = counts.failed;
    m_filesSkipped = counts.skipped;
    m_totalBytes = counts.bytes;
}

void MigrationManager::pause()
{
    if (!m_migrating || m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::pause() - local request";
    m_pausedByPeer = false;
    setWorkersPaused(true);
    sendToPeer(MessageType::TransferPause);
    Q_EMIT paused();
}

void MigrationManager::resume()
{
    if (!m_migrating || !m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::resume() - local request";
    setWorkersPaused(false);
    sendToPeer(MessageType::TransferResume);
    Q_EMIT resumed();
}

void MigrationManager::cancel()
{
    if (!m_migrating)
        return;
    qCDebug(logPipeline) << "MigrationManager::cancel()";
    m_settingsOwed = false;
    cancelWorkersQueued();
    // A paused receiver waits inside a slot: a queued call would wait with it.
    if (m_paused && m_receiverWorker)
        m_receiverWorker->cancel();
    sendToPeer(MessageType::TransferCancel);
    m_migrating = false;
    m_completing = false;
    m_incomingRun = false;
    // What the receiver still works off, and an end of an application that is still due, install nothing.
    m_receivedApps->forgetPackages();
    dropDeferred();
    resumeReadingLink();
    Q_EMIT cancelled();
}

void MigrationManager::sendCancelNotification(const QJsonObject &notification)
{
    sendToPeer(MessageType::TransferCancel, compactJson(notification));
}

void MigrationManager::endSession()
{
    ++m_rearmTicket;
}

void MigrationManager::resetAndListen()
{
    dropDeferred();
    resetRun();
}

void MigrationManager::resetRun()
{
    qCDebug(logPipeline) << "MigrationManager::resetAndListen()";
    ++m_run;
    if (m_migrating)
        m_settingsOwed = false; // of a run that never came to its end
    m_migrating = false;
    m_completing = false;
    m_incomingRun = false;
    stopWork();
    fileTransferDone = false;
    appMigrationDone = false;
    settingPhaseDone = false;
    m_foldersPhaseDone = false;
    m_appFilePhaseDone = false;
    storeCounts({});
    clearAppQueue();
    m_early.clear();
    // A later run must not install what one that was called off has left half received.
    m_receivedApps->forgetPackages();
    m_settingsApplied = m_settingsFailed = 0;
    resumeReadingLink();
}

void MigrationManager::restartReceiving()
{
    qCDebug(logPipeline) << "MigrationManager::restartReceiving()";
    m_migrating = true;
    clearReportCounters();
    stopWorkers();
    setupConnections();
    startEverythingReceiving();
    qCDebug(logPipeline) << "Receiver restarted, waiting for new transfer";
}

QList<FileTransferTask> MigrationManager::buildTaskList(const QList<FolderInfo> &folders)
{
    return taskListFor(folders, m_nextTaskId).tasks;
}

void MigrationManager::onWorkerAllCompleted(int success, int failed, int skipped, qlonglong totalBytes)
{
    qCDebug(logPipeline) << "[Serial] MigrationManager::onWorkerAllCompleted - success:" << success
                         << "failed:" << failed << "skipped:" << skipped << "bytes:" << totalBytes
                         << "sendingAppPhase:" << sendingAppPhase;
    m_accumulated.success += success;
    m_accumulated.failed += failed;
    m_accumulated.skipped += skipped;
    m_accumulated.bytes += totalBytes;

    if (m_role == NewPC) {
        storeCounts({success, failed, skipped, totalBytes});
        fileTransferDone = true;
        m_receivedApps->forceInstallAll();
        m_receivedApps->cleanUp();
    } else if (!finishFileList()) {
        return;
    } else {
        storeCounts(m_accumulated);
        fileTransferDone = m_foldersPhaseDone && m_appFilePhaseDone;
        qCDebug(logPipeline) << "[Serial] fileTransferDone=" << fileTransferDone
                             << "appMigrationDone=" << appMigrationDone;
    }
    checkAllCompleted();
}

/// One of the sender's lists is through. False while another is to follow.
bool MigrationManager::finishFileList()
{
    if (sendingAppPhase) {
        m_appFilePhaseDone = true;
        sendingAppPhase = false;
        appMigrationDone = true;
        qCDebug(logPipeline) << "[Serial] App file phase done.";
        sendDelayedAppEnds();
        return true;
    }
    m_foldersPhaseDone = true;
    qCDebug(logPipeline) << "[Serial] Folders phase done. appFilesAllQueued=" << appFilesAllQueued
                         << "pendingAppTasks=" << m_pendingAppTasks.size()
                         << "hasAppsToMigrate=" << hasAppsToMigrate;
    if (hasAppsToMigrate && !appFilesAllQueued) {
        qCDebug(logPipeline) << "[Serial] Waiting AppMigrator to finish queueing...";
        return false;
    }
    if (hasAppsToMigrate && !m_pendingAppTasks.isEmpty()) {
        startAppFilePhase();
        return false;
    }
    m_appFilePhaseDone = true;
    appMigrationDone = true;
    qCDebug(logPipeline) << "[Serial] No app files to send, marking app file phase done.";
    return true;
}

void MigrationManager::checkAllCompleted()
{
    qCDebug(logPipeline) << "checkAllCompleted() -"
                         << "fileTransferDone:" << fileTransferDone << "appMigrationDone:" << appMigrationDone
                         << "settingPhaseDone:" << settingPhaseDone << "role:" << m_role;
    if (!m_migrating || !fileTransferDone || !appMigrationDone || !settingPhaseDone)
        return;
    // The three flags may still stand from a run before; these two are of this run.
    if (m_role == OldPC && !(m_foldersPhaseDone && m_appFilePhaseDone))
        return;

    const MigrationReport report = buildReport();
    if (m_role == OldPC && m_networkManager) {
        qCDebug(logPipeline) << "Sending final TransferComplete to receiver";
        sendToPeer(MessageType::TransferComplete, TransferMessages::completePayload(report));
    }
    m_migrating = false;
    m_completing = false;
    resumeReadingLink();
    Q_EMIT completed(report);
    qCDebug(logPipeline) << "All migration completed!";
    processDeferred();
}

MigrationReport MigrationManager::buildReport() const
{
    constexpr int SampledFolders = 3;

    MigrationReport report;
    report.startTime = m_startTime;
    report.endTime = QDateTime::currentDateTime();
    report.filesSuccess = m_filesSuccess;
    report.filesFailed = m_filesFailed;
    report.filesSkipped = m_filesSkipped;
    report.appsSuccess = m_appsSuccess;
    report.appsFailed = m_appsFailed;
    report.appsSkipped = m_appsSkipped;
    report.settingsSuccess = m_settingsApplied;
    report.settingsFailed = m_settingsFailed;
    report.totalBytes = m_totalBytes;
    const qint64 seconds = report.startTime.isValid() ? report.startTime.secsTo(report.endTime) : 0;
    if (seconds > 0)
        report.averageSpeed = double(m_totalBytes) / double(seconds);
    if (m_role != NewPC || !m_receiverWorker)
        return report;

    const ReceivedFolders &received = m_receiverWorker->receivedFolders();
    report.savedFolderPaths = received.paths;
    report.savedFolderCounts = received.counts;
    for (auto entry = received.folders.cbegin(); entry != received.folders.cend(); ++entry) {
        const QStringList &names = entry.value();
        if (names.isEmpty())
            continue;
        const QString shown =
            QStringList(names.first(std::min<qsizetype>(names.size(), SampledFolders))).join(u", ");
        report.savedFolderSamples.insert(
            entry.key(), u'(' + shown + (names.size() > SampledFolders ? u", ...)"_s : u")"_s));
    }
    return report;
}

/// Whether there is a peer that this side said yes to, and the run is one with that peer.
bool MigrationManager::isLinkOfRun() const
{
    const quint64 link = m_networkManager ? m_networkManager->acceptedLink() : 0;
    return link != 0 && (!m_migrating || !m_runLink || *m_runLink == link);
}

/// Nothing of a run leaves on a link that nobody on this side said yes to: whoever dials in the middle of a
/// run takes the socket over, and must not be sent the rest of the user's files.
void MigrationManager::sendToPeer(MessageType type, const QByteArray &payload)
{
    if (!m_networkManager)
        return;
    if (!isLinkOfRun()) {
        if (!m_refusalLogged)
            qCDebug(logPipeline) << "Not sent, the link is not accepted or not that of the run, type:"
                                 << int(type);
        m_refusalLogged = true;
        return;
    }
    m_networkManager->sendCommand(type, payload);
}

void MigrationManager::onWorkerRequestSendCommand(int type, const QByteArray &payload)
{
    if (type != int(MessageType::FileData))
        qCDebug(logPipeline) << ">>> onWorkerRequestSendCommand called! type:" << type
                             << "size:" << payload.size();
    if (!m_networkManager) {
        qCDebug(logPipeline) << ">>> ERROR: m_networkManager is NULL!";
        return;
    }
    if (type == int(MessageType::AppEnd)) {
        m_delayedAppEnds.append(readAppEnd(payload));
        qCDebug(logPipeline) << "[Serial] AppEnd queued for later:" << m_delayedAppEnds.constLast();
        return;
    }
    // Packing and exporting run beside the sender and may be quicker. A peer that waits for a further run
    // would take none of it before it knows of one.
    m_listAnnounced = m_listAnnounced || m_role == NewPC || type == int(MessageType::TransferStart);
    if (!m_listAnnounced) {
        m_early.append({MessageType(type), payload});
        return;
    }
    sendForWorker(MessageType(type), payload);
    for (const Message &message : std::exchange(m_early, {}))
        sendForWorker(message.type, message.payload);
}

void MigrationManager::sendForWorker(MessageType type, const QByteArray &payload)
{
    const bool traced = type != MessageType::FileData;
    if (traced)
        qCDebug(logPipeline) << ">>> Sending command via NetworkManager, type:" << int(type);
    sendToPeer(type, payload);
    if (traced)
        qCDebug(logPipeline) << ">>> Command sent!";
}

void MigrationManager::onWorkerFileStarted(const QString &fileName, qlonglong size)
{
    Q_UNUSED(size)
    Q_EMIT fileTransferStarted(fileName);
}

void MigrationManager::onWorkerFileProgress(const QString &fileName, int percent, qlonglong moved,
                                            qlonglong total)
{
    Q_UNUSED(moved)
    Q_UNUSED(total)
    Q_EMIT fileTransferProgress(fileName, percent);
}

void MigrationManager::onWorkerFileCompleted(const QString &fileName)
{
    ++m_filesSuccess;
    Q_EMIT fileTransferCompleted(fileName);
}

void MigrationManager::onWorkerFileFailed(const QString &fileName, const QString &error)
{
    ++m_filesFailed;
    Q_EMIT fileTransferFailed(fileName, error);
}

void MigrationManager::onWorkerOverallProgress(const TransferProgress &progress)
{
    m_progress = progress;
    Q_EMIT progressChanged(progress);
}

void MigrationManager::onWorkerError(const QString &msg)
{
    Q_EMIT failed(msg);
}

} // namespace Zandrove
