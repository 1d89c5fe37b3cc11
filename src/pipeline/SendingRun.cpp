#include "pipeline/SendingRun.h"

#include "appmigration/AppMessages.h"
#include "appmigration/AppMigrator.h"
#include "pipeline/DestinationMap.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/Log.h"
#include "pipeline/TaskList.h"
#include "platform/FileAttributes.h"
#include "settings/SettingMigrator.h"

#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

constexpr auto ConfirmPoll = 100ms;

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
    : MigrationRun(OldPC, std::move(link), parent)
    , m_linkNumber(m_link.number())
    , m_selection(withoutTheUnmovable(std::move(selection)))
    , m_phases(!m_selection.apps.isEmpty(), !m_selection.settings.isEmpty())
    , m_sender(new FileSenderWorker)
{
    qCDebug(logPipeline) << "  Creating FileSenderWorker";
    m_sender->setConflictPolicy(m_selection.conflictPolicy);
    // The socket belongs to the main thread and comes and goes there: the worker sees
    // a counter that outlives it.
    if (m_link.unsentBytes)
        m_sender->setBufferProbe([unsent = m_link.unsentBytes] { return unsent->load(); });
    startFileWorker(m_sender);
    wireLedger();
    connect(m_appMigrator, &AppMigrator::requestSendFile, this, &SendingRun::queueAppFile);
    connect(m_appMigrator, &AppMigrator::finished, this, &SendingRun::onAppsPacked);
    connect(m_appMigrator, &AppMigrator::appFinished, this, &SendingRun::appOutcome);
}

/// The worker tells in the order in which its messages leave, so the ledger sees them in that order.
void SendingRun::wireLedger()
{
    m_clock.start();
    m_confirmTimer.setInterval(ConfirmPoll);
    connect(&m_confirmTimer, &QTimer::timeout, this, &SendingRun::finishWhenConfirmed);
    connect(m_sender, &FileSenderWorker::taskFailed, this, [this](int taskId, const QString &reason) {
        m_ledger.failedHere(taskId, reason);
        tellSettled();
    });
    connect(m_sender, &FileSenderWorker::fileEndSent, this,
            [this](int taskId, bool changed) { m_ledger.fileEndSent(taskId, changed); });
    connect(m_sender, &FileSenderWorker::answerRequested, this,
            [this](int batchId, qint64 batchBytes) { m_ledger.answerRequested(batchId, batchBytes, now()); });
    const auto note = [this](ItemKind kind, const QString &name, bool success, const QString &error) {
        // What is packed is on its way; whether it got there is known with the run.
        if (success)
            m_sentItems.append({kind, ItemOutcome::Arrived, name, {}, 0});
        else
            m_ledger.settleItem(kind, name, ItemOutcome::Failed, error);
        tellSettled();
    };
    connect(this, &MigrationRun::settingOutcome, this,
            [note](const QString &name, bool success, const QString &error) {
                note(ItemKind::Setting, name, success, error);
            });
    connect(m_appMigrator, &AppMigrator::appFinished, this,
            [note](const QString &name, bool success, const QString &error) {
                note(ItemKind::Application, name, success, error);
            });
    for (const AppInfo &app : std::as_const(m_selection.apps))
        m_ledger.expectItem(ItemKind::Application, app.name);
    for (const SettingInfo &setting : std::as_const(m_selection.settings))
        m_ledger.expectItem(ItemKind::Setting, setting.name);
}

SendingRun::~SendingRun()
{
    waitForThreads();
}

void SendingRun::begin()
{
    TaskList list = taskListFor(m_selection.folders, m_nextTaskId);
    for (const TaskFailure &failure : std::as_const(list.failures))
        m_ledger.failedBeforehand(failure.path, failure.reason, failure.bytes);
    tellSettled();
    qCDebug(logPipeline) << "Starting migration:";
    qCDebug(logPipeline) << "  - Folder files:" << list.tasks.size();
    qCDebug(logPipeline) << "  - Apps:" << m_selection.apps.size();
    qCDebug(logPipeline) << "  - Settings:" << m_selection.settings.size();
    sendList(std::move(list.tasks));
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
    m_ledger.expect(tasks);
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
    for (const ItemResult &item : std::exchange(m_sentItems, {}))
        m_ledger.settleItem(
            item.kind, item.path, ItemOutcome::NotConfirmed,
            tr("sent, but %1 has not confirmed that it arrived").arg(m_ledger.summary().peerName));
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
    if (kind == MessageType::TransferStart)
        m_phases.announce();
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
    m_appOfFile.insert(filePath, appOfPath(relativePath));
    const std::optional<qint64> size = sizeToSend(filePath);
    m_phases.appFileAnnounced(size.has_value());
    if (!size) {
        qCDebug(logPipeline) << "[AppQueue] missing:" << filePath;
        m_ledger.failedBeforehand(filePath, tr("File not found: %1").arg(filePath));
        tellSettled();
        return;
    }
    FileTransferTask task;
    task.taskId = m_nextTaskId++;
    task.sourcePath = filePath;
    task.relativePath = relativePath;
    task.fileSize = *size;
    m_appTasks.append(task);
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
                         << "appFilesQueued:" << m_phases.announcedAppFiles()
                         << "pendingAppTasks:" << m_appTasks.size();
    act(m_phases.packed());
}

void SendingRun::onFilesThrough(int success, int failed, int skipped, qlonglong bytes)
{
    qCDebug(logPipeline) << "[Serial] MigrationManager::onWorkerAllCompleted - success:" << success
                         << "failed:" << failed << "skipped:" << skipped << "bytes:" << bytes
                         << "sendingAppPhase:" << m_phases.isSendingAppFiles();
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
        leave();
}

/// Each makes the New PC install that application, so they stand behind all files.
void SendingRun::sendHeldAppEnds()
{
    for (const QString &name : std::exchange(m_heldAppEnds, {})) {
        qCDebug(logPipeline) << "[Serial] Sending delayed AppEnd for:" << name;
        sendToPeer(MessageType::AppEnd, heldAppEndPayload(name));
        Q_EMIT installing(name, 0);
    }
}

/// All that there is to send has left. The run goes on until the answers are here.
void SendingRun::leave()
{
    // While it ran, the counts were those of single files, some of them counted twice.
    m_report.filesSuccess = m_through.filesSuccess;
    m_report.filesFailed = m_through.filesFailed;
    m_report.filesSkipped = m_through.filesSkipped;
    m_report.totalBytes = m_through.totalBytes;
    qCDebug(logPipeline) << "Sending final TransferComplete to receiver";
    sendToPeer(MessageType::TransferComplete, TransferMessages::completePayload(m_report));
    m_ledger.everythingLeft();
    m_ledger.restartClocks(now());
    m_confirmTimer.start();
    finishWhenConfirmed();
}

/// The run is complete for its user when each file has its outcome, and the last bytes have left this PC.
void SendingRun::finishWhenConfirmed()
{
    if (!isOn() || !m_confirmTimer.isActive())
        return;
    const bool unsent = m_link.unsentBytes && m_link.unsentBytes->load() > 0;
    // A peer that is paused, or that has not got the request yet, can't answer.
    if (isPaused() || unsent)
        m_ledger.restartClocks(now());
    else
        m_ledger.expire(now());
    tellSettled();
    if (!m_ledger.isSettled() || (unsent && belongsTo(m_link.number())))
        return;
    settleItems();
    finish(RunEnd::Complete);
}

/// What was packed has arrived where none of its files is missing.
void SendingRun::settleItems()
{
    for (const ItemResult &item : std::exchange(m_sentItems, {})) {
        const int missing =
            item.kind == ItemKind::Application ? m_missingOfApp.value(makeSafeName(item.path)) : 0;
        if (missing > 0)
            m_ledger.settleItem(
                item.kind, item.path, ItemOutcome::Failed,
                tr("Files of %1 that did not arrive: %2").arg(item.path, QString::number(missing)));
        else
            m_ledger.settleItem(
                item.kind, item.path, ItemOutcome::Arrived,
                tr("sent; what became of it stands in the report of %1").arg(m_ledger.summary().peerName));
    }
    tellSettled();
}

void SendingRun::noteSettled(const ItemResult &item)
{
    if (item.kind != ItemKind::File || item.outcome == ItemOutcome::Arrived)
        return;
    if (const auto app = m_appOfFile.constFind(item.path); app != m_appOfFile.cend())
        ++m_missingOfApp[*app];
}

void SendingRun::end(RunEnd how)
{
    // The last answers may have come ahead of the end of the link. What is to be installed is not through
    // then.
    if (how == RunEnd::LinkLost && m_confirmTimer.isActive() && m_ledger.isSettled() &&
        m_sentItems.isEmpty()) {
        settleItems();
        finish(RunEnd::Complete);
    }
    MigrationRun::end(how);
}

void SendingRun::onAnswer(const TransferMessages::Ack &answer)
{
    BatchAnswer outcome{answer.batchId, answer.success, {}};
    for (const TransferMessages::Ack::NamedFile &file : answer.namedFiles)
        outcome.files.append(
            {file.taskId, file.relativePath, file.error, file.skipped, file.identical, file.fullVolume});
    m_ledger.answered(outcome);
    tellSettled();
    qCDebug(logPipeline) << ">>> Calling onBatchAckReceived: batchId=" << answer.batchId
                         << "success=" << answer.success << "failedCount=" << answer.namedFiles.size();
    // Directly: the worker's thread is blocked waiting for this answer.
    m_sender->onBatchAckReceived(answer.batchId, answer.success, answer.namedPaths());
    qCDebug(logPipeline) << ">>> onBatchAckReceived invoked!";
    finishWhenConfirmed();
}

} // namespace Zandrove
