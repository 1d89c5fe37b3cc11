#include "pipeline/SendingRun.h"

#include "appmigration/AppMessages.h"
#include "appmigration/AppMigrator.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/Log.h"
#include "pipeline/TaskList.h"
#include "platform/FileAttributes.h"
#include "settings/SettingMigrator.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

SendSelection withoutTheUnmovable(SendSelection selection)
{
    selection.apps.removeIf([](const AppInfo &app) { return !app.canTransfer || !app.selected; });
    selection.settings.removeIf(
        [](const SettingInfo &setting) { return !setting.selected || !setting.available; });
    return selection;
}

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

SendingRun::SendingRun(RunLink link, SendSelection selection, QObject *parent)
    : MigrationRun(std::move(link), parent)
    , m_linkNumber(m_link.number())
    , m_selection(withoutTheUnmovable(std::move(selection)))
    , m_phases(!m_selection.apps.isEmpty(), !m_selection.settings.isEmpty())
    , m_sender(new FileSenderWorker)
{
    qCDebug(logPipeline) << "  Creating FileSenderWorker";
    m_sender->setConflictPolicy(m_selection.conflictPolicy);
    // The socket belongs to the main thread and comes and goes there: the worker sees a counter that outlives
    // it.
    if (m_link.unsentBytes)
        m_sender->setBufferProbe([unsent = m_link.unsentBytes] { return unsent->load(); });
    startFileWorker(m_sender);
    connect(m_appMigrator, &AppMigrator::requestSendFile, this, &SendingRun::queueAppFile);
    connect(m_appMigrator, &AppMigrator::finished, this, &SendingRun::onAppsPacked);
    connect(m_appMigrator, &AppMigrator::appFinished, this, &SendingRun::appOutcome);
}

SendingRun::~SendingRun()
{
    waitForThreads();
}

void SendingRun::begin()
{
    QList<FileTransferTask> tasks = taskListFor(m_selection.folders, m_nextTaskId);
    qCDebug(logPipeline) << "Starting migration:";
    qCDebug(logPipeline) << "  - Folder files:" << tasks.size();
    qCDebug(logPipeline) << "  - Apps:" << m_selection.apps.size();
    qCDebug(logPipeline) << "  - Settings:" << m_selection.settings.size();
    sendList(std::move(tasks));
    if (!m_selection.apps.isEmpty()) {
        qCDebug(logPipeline) << "Starting app migration for" << m_selection.apps.size() << "apps";
        QMetaObject::invokeMethod(
            m_appMigrator, [migrator = m_appMigrator, apps = m_selection.apps] { migrator->start(apps); },
            Qt::QueuedConnection);
    }
    if (!m_selection.settings.isEmpty()) {
        qCDebug(logPipeline) << "Starting setting migration for" << m_selection.settings.size() << "settings";
        QMetaObject::invokeMethod(
            m_settingMigrator,
            [migrator = m_settingMigrator, settings = m_selection.settings] { migrator->start(settings); },
            Qt::QueuedConnection);
    }
}

void SendingRun::sendList(QList<FileTransferTask> tasks)
{
    QMetaObject::invokeMethod(
        m_sender,
        [sender = m_sender, tasks = std::move(tasks)]() mutable { sender->startSending(std::move(tasks)); },
        Qt::QueuedConnection);
}

void SendingRun::pauseWorkers(bool paused)
{
    m_sender->setPaused(paused);
}

void SendingRun::stopWorkers()
{
    m_sender->disconnect();
    m_sender->stop();
    MigrationRun::stopWorkers();
}

void SendingRun::onRequestSendCommand(int type, const QByteArray &payload)
{
    const auto kind = MessageType(type);
    if (kind == MessageType::AppEnd) {
        m_heldAppEnds.append(readAppEnd(payload));
        qCDebug(logPipeline) << "[Serial] AppEnd queued for later:" << m_heldAppEnds.constLast();
        return;
    }
    if (kind == MessageType::TransferStart) {
        m_phases.announce();
        m_sender->setPaused(isPaused()); // a pause given before the list began was wiped out by its beginning
    }
    // Packing and exporting run beside the sender and may be quicker. A peer that waits for a further run
    // would take none of it before it knows of one.
    if (!m_phases.isAnnounced()) {
        m_early.append({kind, payload});
        return;
    }
    MigrationRun::onRequestSendCommand(type, payload);
    for (const RunMessage &message : std::exchange(m_early, {}))
        MigrationRun::onRequestSendCommand(int(message.type), message.payload);
}

void SendingRun::queueAppFile(const QString &filePath, const QString &relativePath)
{
    const std::optional<qint64> size = sizeToSend(filePath);
    if (!size) {
        qCDebug(logPipeline) << "[AppQueue] missing:" << filePath;
        return;
    }
    FileTransferTask task;
    task.taskId = m_nextTaskId++;
    task.sourcePath = filePath;
    task.relativePath = relativePath;
    task.fileSize = *size;
    m_appTasks.append(task);
    m_phases.appFileQueued();
    qCDebug(logPipeline) << "[AppQueue] queued:" << relativePath << "size:" << *size
                         << "taskId:" << task.taskId;
}

void SendingRun::onAppsPacked(int success, int failed, int skipped)
{
    m_report.appsSuccess = success;
    m_report.appsFailed = failed;
    m_report.appsSkipped = skipped;
    qCDebug(logPipeline) << "[Serial] App migration finished (queue done) - appsSuccess:" << success
                         << "appsFailed:" << failed << "appsSkipped:" << skipped
                         << "pendingAppTasks:" << m_appTasks.size();
    act(m_phases.packed());
}

void SendingRun::onFilesThrough(int success, int failed, int skipped, qlonglong bytes)
{
    qCDebug(logPipeline) << "[Serial] MigrationManager::onWorkerAllCompleted - success:" << success
                         << "failed:" << failed << "skipped:" << skipped << "bytes:" << bytes;
    m_through.filesSuccess += success;
    m_through.filesFailed += failed;
    m_through.filesSkipped += skipped;
    m_through.totalBytes += bytes;
    act(m_phases.listThrough());
}

void SendingRun::onSettingsThrough(int succeeded, int failed)
{
    qCDebug(logPipeline) << "[Setting] Migration finished - applied:" << succeeded << "failed:" << failed;
    m_report.settingsSuccess = succeeded;
    m_report.settingsFailed = failed;
    const SendPhases::Actions next = m_phases.settingsThrough();
    Q_EMIT settingsFinished(succeeded, failed);
    act(next);
}

void SendingRun::act(const SendPhases::Actions &actions)
{
    if (actions.sendHeldEnds)
        sendHeldAppEnds();
    if (actions.sendAppFiles) {
        qCDebug(logPipeline) << "[Serial] Starting APP FILE phase. tasks=" << m_appTasks.size();
        sendList(std::exchange(m_appTasks, {}));
    }
    if (actions.complete)
        complete();
}

/// Each makes the New PC install that application, so they stand behind all files.
void SendingRun::sendHeldAppEnds()
{
    for (const QString &name : std::exchange(m_heldAppEnds, {})) {
        qCDebug(logPipeline) << "[Serial] Sending delayed AppEnd for:" << name;
        sendToPeer(MessageType::AppEnd, heldAppEndPayload(name));
    }
}

void SendingRun::complete()
{
    // While it ran, the counts were those of single files, some of them counted twice.
    m_report.filesSuccess = m_through.filesSuccess;
    m_report.filesFailed = m_through.filesFailed;
    m_report.filesSkipped = m_through.filesSkipped;
    m_report.totalBytes = m_through.totalBytes;
    qCDebug(logPipeline) << "Sending final TransferComplete to receiver";
    sendToPeer(MessageType::TransferComplete, TransferMessages::completePayload(m_report));
    finish(RunEnd::Complete);
}

void SendingRun::onAnswer(const TransferMessages::Ack &answer)
{
    qCDebug(logPipeline) << ">>> Calling onBatchAckReceived: batchId=" << answer.batchId
                         << "success=" << answer.success << "failedCount=" << answer.failedFiles.size();
    // Directly: the worker's thread is blocked waiting for this answer.
    m_sender->onBatchAckReceived(answer.batchId, answer.success, answer.failedFiles);
    qCDebug(logPipeline) << ">>> onBatchAckReceived invoked!";
}

} // namespace Zandrove
