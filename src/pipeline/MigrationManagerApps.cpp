// MigrationManager's applications: their files behind those of the folders on the Old PC, their installation
// on the New PC.

#include "appmigration/AppMessages.h"
#include "appmigration/AppMigrator.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/Log.h"
#include "pipeline/MigrationManager.h"
#include "pipeline/ReceivedApps.h"
#include "platform/FileAttributes.h"

#include <QFileInfo>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

constexpr auto AppEndDelay = 300ms;

/// Bytes that `path` brings along, of a shortcut its own; nothing where it is gone.
std::optional<qint64> sizeToSend(const QString &path)
{
    if (path.endsWith(".lnk"_L1, Qt::CaseInsensitive)) {
        if (const std::optional<qint64> size = Platform::realFileSize(path))
            return size;
    }
    const QFileInfo file(path);
    return file.exists() ? std::optional(file.size()) : std::nullopt;
}

} // namespace

QList<AppInfo> MigrationManager::appsToMigrate() const
{
    QList<AppInfo> apps;
    std::copy_if(m_apps.cbegin(), m_apps.cend(), std::back_inserter(apps),
                 [](const AppInfo &app) { return app.canTransfer && app.selected; });
    return apps;
}

void MigrationManager::startAppMigration(const QList<AppInfo> &apps)
{
    if (apps.isEmpty())
        return;
    qCDebug(logPipeline) << "Starting app migration for" << apps.size() << "apps";
    QMetaObject::invokeMethod(
        m_appMigrator, [migrator = m_appMigrator, apps] { migrator->start(apps); }, Qt::QueuedConnection);
}

void MigrationManager::onAppRequestSendFile(const QString &filePath, const QString &relativePath)
{
    ++appFilesQueued;
    const std::optional<qint64> size = sizeToSend(filePath);
    if (!size) {
        qCDebug(logPipeline) << "[AppQueue] missing:" << filePath;
        ++m_appFilesMissing;
        checkAppQueue();
        return;
    }
    FileTransferTask task;
    task.taskId = m_nextTaskId++;
    task.sourcePath = filePath;
    task.relativePath = relativePath;
    task.fileSize = *size;
    m_pendingAppTasks.append(task);
    qCDebug(logPipeline) << "[AppQueue] queued:" << relativePath << "size:" << *size
                         << "taskId:" << task.taskId;
}

void MigrationManager::onAppMigrationFinished(int success, int failed, int skipped)
{
    m_appsSuccess = success;
    m_appsFailed = failed;
    m_appsSkipped = skipped;
    appFilesAllQueued = true;
    qCDebug(logPipeline) << "[Serial] App migration finished (queue done) - appsSuccess:" << success
                         << "appsFailed:" << failed << "appsSkipped:" << skipped
                         << "appFilesQueued:" << appFilesQueued
                         << "pendingAppTasks:" << m_pendingAppTasks.size();
    if (appFilesQueued != 0) {
        checkAppQueue();
        return;
    }
    appMigrationDone = true;
    m_appFilePhaseDone = true;
    if (m_foldersPhaseDone) {
        fileTransferDone = true;
        checkAllCompleted();
    }
}

void MigrationManager::checkAppQueue()
{
    if (!appFilesAllQueued)
        return;
    qCDebug(logPipeline) << "[Serial] All app files queued. queued=" << appFilesQueued
                         << "pendingTasks=" << m_pendingAppTasks.size();
    if (m_pendingAppTasks.isEmpty()) {
        appMigrationDone = true;
        m_appFilePhaseDone = true;
        qCDebug(logPipeline) << "[Serial] No app files to send, app migration done";
        if (m_foldersPhaseDone) {
            storeCounts(m_accumulated);
            fileTransferDone = true;
        }
        checkAllCompleted();
    } else if (m_role == OldPC && m_foldersPhaseDone) {
        startAppFilePhase();
    }
}

void MigrationManager::startAppFilePhase()
{
    if (!m_senderWorker || sendingAppPhase)
        return;
    sendingAppPhase = true;
    qCDebug(logPipeline) << "[Serial] Starting APP FILE phase. tasks=" << m_pendingAppTasks.size();
    QMetaObject::invokeMethod(
        m_senderWorker,
        [sender = m_senderWorker, tasks = m_pendingAppTasks]() mutable {
            sender->startSending(std::move(tasks));
        },
        Qt::QueuedConnection);
}

/// Each makes the New PC install that application, so they stand behind all files.
void MigrationManager::sendDelayedAppEnds()
{
    for (const QString &name : std::exchange(m_delayedAppEnds, {})) {
        qCDebug(logPipeline) << "[Serial] Sending delayed AppEnd for:" << name;
        sendToPeer(MessageType::AppEnd, heldAppEndPayload(name));
    }
}

void MigrationManager::onAppStart(const QByteArray &payload)
{
    if (m_role == NewPC && m_receivedApps->begin(payload) && m_appMigrator)
        m_appMigrator->onAppPackageReceived(payload);
}

void MigrationManager::onAppEnd(const QByteArray &payload)
{
    if (m_role != NewPC)
        return;
    const QString name = readAppEnd(payload);
    qCDebug(logPipeline) << "Received AppEnd for:" << name;
    afterAppEndDelay([this, name] { processAppEnd(name); });
}

void MigrationManager::processAppEnd(const QString &appName)
{
    if (!flushReceiver()) {
        afterAppEndDelay([this, appName] { processAppEnd(appName); });
        return;
    }
    qCDebug(logPipeline) << "Processing AppEnd for:" << appName << "(queue flushed)";
    const int open = m_receivedApps->end(appName);
    qCDebug(logPipeline) << "AppEnd processed, open file count:" << open;
    if (open > 0)
        qCDebug(logPipeline) << "Waiting for" << open << "files to complete before installing" << appName;
    else
        m_receivedApps->tryInstallApp(appName);
    if (m_appMigrator)
        m_appMigrator->onAppEndReceived(appName);
}

/// The last file of an application that has ended already is on its way to the disk.
void MigrationManager::installWhenWritten(const QString &appName)
{
    if (!flushReceiver())
        afterAppEndDelay([this, appName] { installWhenWritten(appName); });
    else if (m_receivedApps->isComplete(appName))
        m_receivedApps->tryInstallApp(appName);
}

void MigrationManager::afterAppEndDelay(std::function<void()> action)
{
    QTimer::singleShot(AppEndDelay, this, [this, run = m_run, action = std::move(action)] {
        if (run == m_run)
            action();
    });
}

/// Waits until the receiver has worked off all it was given. False, and nothing waited for, in a paused run:
/// the receiver goes on when this thread tells it to.
bool MigrationManager::flushReceiver()
{
    if (m_paused)
        return false;
    if (m_receiverWorker && m_workerThread->isRunning())
        QMetaObject::invokeMethod(
            m_receiverWorker, [] {}, Qt::BlockingQueuedConnection);
    return true;
}

void MigrationManager::onAppInstalled(const QString &name, bool success, const QString &error)
{
    ++(success ? m_appsSuccess : m_appsFailed);
    Q_EMIT appOutcome(name, success, error);
}

void MigrationManager::onAppStarted(const QString &name)
{
    Q_EMIT fileTransferStarted(tr("[App] %1").arg(name));
}

void MigrationManager::onAppProgress(const QString &name, int percent, const QString &)
{
    Q_EMIT fileTransferProgress(tr("[App] %1").arg(name), percent);
}

void MigrationManager::onAppFinished(const QString &name, bool success, const QString &error)
{
    const QString shown = tr("[App] %1").arg(name);
    if (success)
        Q_EMIT fileTransferCompleted(shown);
    else
        Q_EMIT fileTransferFailed(shown, error);
    if (m_role == OldPC)
        Q_EMIT appOutcome(name, success, error);
}

} // namespace Zandrove
