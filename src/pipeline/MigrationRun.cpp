#include "pipeline/MigrationRun.h"

#include "appmigration/AppMigrator.h"
#include "pipeline/Log.h"
#include "settings/SettingMigrator.h"
#include "support/RunTexts.h"
#include "support/Utilities.h"

#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

constexpr qsizetype TracedPayloadBytes = 300;

} // namespace

MigrationRun::MigrationRun(int role, RunLink link, QObject *parent)
    : RunEvents(parent)
    , m_link(std::move(link))
    , m_ledger(role, getComputerName(), m_link.peer(), QDateTime::currentDateTime())
    , m_appMigrator(new AppMigrator)
    , m_settingMigrator(new SettingMigrator)
    , m_fileThread(u"Worker"_s, WorkerThread::LastResort::Terminate, this)
    // What is installing must not be cut off in the middle of a file.
    , m_appThread(u"App"_s, WorkerThread::LastResort::LetRun, this)
    , m_settingThread(u"Setting"_s, WorkerThread::LastResort::Terminate, this)
{
    m_report.startTime = QDateTime::currentDateTime();
    wireMigrators();
    m_appThread.carry(m_appMigrator);
    m_settingThread.carry(m_settingMigrator);
}

MigrationRun::~MigrationRun() = default;

void MigrationRun::wireMigrators()
{
    connect(m_appMigrator, &AppMigrator::appStarted, this, [this](const QString &name) {
        Q_EMIT fileTransferStarted(rowName(ItemKind::Application, name));
    });
    connect(m_appMigrator, &AppMigrator::appProgress, this, [this](const QString &name, int percent) {
        Q_EMIT fileTransferProgress(rowName(ItemKind::Application, name), percent);
    });
    connect(m_appMigrator, &AppMigrator::appFinished, this, &MigrationRun::onAppFinished);
    connect(m_appMigrator, &AppMigrator::requestSendCommand, this, &MigrationRun::onWorkerRequestSendCommand);
    connect(m_settingMigrator, &SettingMigrator::settingStarted, this, [this](const QString &name) {
        qCDebug(logPipeline) << "[Setting] Started:" << name;
        Q_EMIT fileTransferStarted(rowName(ItemKind::Setting, name));
    });
    connect(m_settingMigrator, &SettingMigrator::settingProgress, this,
            [this](const QString &name, int percent) {
                Q_EMIT fileTransferProgress(rowName(ItemKind::Setting, name), percent);
            });
    connect(m_settingMigrator, &SettingMigrator::settingFinished, this, &MigrationRun::onSettingFinished);
    connect(m_settingMigrator, &SettingMigrator::finished, this, &MigrationRun::onSettingsThrough);
    connect(m_settingMigrator, &SettingMigrator::requestSendCommand, this,
            &MigrationRun::onWorkerRequestSendCommand);
}

void MigrationRun::onAppFinished(const QString &name, bool success, const QString &error)
{
    const QString shown = rowName(ItemKind::Application, name);
    if (success)
        Q_EMIT fileTransferCompleted(shown);
    else
        Q_EMIT fileTransferFailed(shown, error);
}

void MigrationRun::onSettingFinished(const QString &name, bool success, const QString &error)
{
    const QString shown = rowName(ItemKind::Setting, name);
    if (success)
        Q_EMIT fileTransferCompleted(shown);
    else
        Q_EMIT fileTransferFailed(shown, error);
    Q_EMIT settingOutcome(name, success, error);
}

void MigrationRun::pause()
{
    if (!isOn() || m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::pause() - local request";
    m_pausedByPeer = false;
    setPaused(true);
    sendToPeer(MessageType::TransferPause);
    Q_EMIT paused();
}

void MigrationRun::resume()
{
    if (!isOn() || !m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::resume() - local request";
    setPaused(false);
    sendToPeer(MessageType::TransferResume);
    Q_EMIT resumed();
}

void MigrationRun::onPeerPause()
{
    if (m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::onPeerPause() - peer requested pause";
    m_pausedByPeer = true;
    setPaused(true);
    Q_EMIT pausedByPeer();
}

void MigrationRun::onPeerResume()
{
    if (!m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::onPeerResume() - peer requested resume";
    setPaused(false);
    Q_EMIT resumedByPeer();
}

void MigrationRun::setPaused(bool paused)
{
    m_paused = paused;
    // Directly: a queued call would wait behind the slot that is to be paused.
    pauseWorkers(paused);
    Q_EMIT stateChanged();
}

void MigrationRun::end(RunEnd how)
{
    if (!isOn())
        return;
    if (how == RunEnd::CancelledHere)
        sendToPeer(MessageType::TransferCancel);
    finish(how);
}

/// The one place where a run ends.
void MigrationRun::finish(RunEnd how)
{
    if (!isOn())
        return;
    m_end = how;
    stopWorkers();
    m_appMigrator->disconnect();
    watchThreads();
    m_fileThread.askToEnd();
    m_appThread.askToEnd();
    if (outlivedBySettings()) {
        m_settingThread.askToEndBehind(m_settingMigrator);
    } else {
        m_settingMigrator->disconnect();
        m_settingThread.askToEnd();
    }
    if (!outlivedBySettings())
        closeLedger();
    Q_EMIT ended(how, how == RunEnd::Complete ? buildReport() : MigrationReport());
}

void MigrationRun::closeLedger()
{
    m_ledger.close(m_end, QDateTime::currentDateTime());
    tellSettled();
}

RunSummary MigrationRun::summary() const
{
    RunSummary summary = m_ledger.summary();
    summary.end = m_end; // also while settings are still being applied
    if (!summary.endTime.isValid() && !isOn())
        summary.endTime = QDateTime::currentDateTime();
    return summary;
}

void MigrationRun::tellSettled()
{
    const QList<ItemResult> settled = m_ledger.takeSettled();
    for (const ItemResult &item : settled) {
        noteSettled(item);
        Q_EMIT itemSettled(item);
    }
}

void MigrationRun::stopWorkers()
{
    m_appMigrator->stop();
    if (!outlivedBySettings())
        m_settingMigrator->stop();
}

void MigrationRun::watchThreads()
{
    for (const WorkerThread *worker : {&m_fileThread, &m_appThread, &m_settingThread})
        connect(worker->thread(), &QThread::finished, this, &MigrationRun::tellWhenGone,
                Qt::QueuedConnection);
}

void MigrationRun::tellWhenGone()
{
    if (!m_fileThread.isRunning() && !m_appThread.isRunning() && !m_settingThread.isRunning())
        Q_EMIT gone();
}

void MigrationRun::waitForThreads()
{
    m_fileThread.end(WorkerThread::StopDeadline);
    m_appThread.end(WorkerThread::StopDeadline);
    m_settingThread.end(outlivedBySettings() ? SettingsDeadline : WorkerThread::StopDeadline);
}

MigrationReport MigrationRun::buildReport() const
{
    MigrationReport report = m_report;
    report.endTime = QDateTime::currentDateTime();
    const qint64 seconds = report.startTime.secsTo(report.endTime);
    if (seconds > 0)
        report.averageSpeed = double(report.totalBytes) / double(seconds);
    return report;
}

/// Nothing of a run leaves on a link that nobody on this side said yes to: whoever dials in the middle of a
/// run takes the socket over, and must not be sent the rest of the user's files. Nor does a run whose link
/// was lost answer on the next one: its batches bear the same numbers as those of the run that comes there.
void MigrationRun::sendToPeer(MessageType type, const QByteArray &payload)
{
    if (!m_link.send)
        return;
    if (isLinkLost() || !belongsTo(m_link.number())) {
        if (!m_refusalLogged)
            qCDebug(logPipeline) << "Not sent, the link is not accepted or not that of the run, type:"
                                 << int(type);
        m_refusalLogged = true;
        return;
    }
    m_link.send(type, payload);
}

void MigrationRun::onWorkerRequestSendCommand(int type, const QByteArray &payload)
{
    if (type != int(MessageType::FileData))
        qCDebug(logPipeline) << ">>> onWorkerRequestSendCommand called! type:" << type
                             << "size:" << payload.size();
    if (!m_link.send)
        qCDebug(logPipeline) << ">>> ERROR: m_networkManager is NULL!";
    onRequestSendCommand(type, payload);
}

void MigrationRun::onRequestSendCommand(int type, const QByteArray &payload)
{
    const bool traced = type != int(MessageType::FileData);
    if (traced)
        qCDebug(logPipeline) << ">>> Sending command via NetworkManager, type:" << type;
    sendToPeer(MessageType(type), payload);
    if (traced)
        qCDebug(logPipeline) << ">>> Command sent!";
}

void MigrationRun::handle(MessageType type, const QByteArray &payload)
{
    switch (type) {
    case MessageType::TransferStart:
        onTransferStart(payload);
        break;
    case MessageType::FileHeader:
        onFileHeader(payload);
        break;
    case MessageType::FileData:
        onFileData(payload);
        break;
    case MessageType::FileEnd:
        onFileEnd(payload);
        break;
    case MessageType::FileAck:
        onFileAck(payload);
        break;
    case MessageType::TransferPause:
        onPeerPause();
        break;
    case MessageType::TransferResume:
        onPeerResume();
        break;
    case MessageType::TransferCancel:
        qCDebug(logPipeline) << "Received TransferCancel from peer";
        qCDebug(logPipeline) << "MigrationManager::handlePeerCancel()";
        finish(RunEnd::CancelledThere);
        break;
    case MessageType::TransferComplete:
        qCDebug(logPipeline) << "Received TransferComplete message!";
        onTransferComplete();
        break;
    case MessageType::TransferReset:
        qCDebug(logPipeline) << "Received TransferReset - peer wants to restart";
        finish(RunEnd::Reset);
        break;
    case MessageType::AppStart:
        onAppStart(payload);
        break;
    case MessageType::AppEnd:
        onAppEnd(payload);
        break;
    case MessageType::SettingStart:
    case MessageType::SettingData:
    case MessageType::SettingEnd:
    case MessageType::SettingComplete:
        onSetting(type, payload);
        break;
    default:
        break;
    }
}

void MigrationRun::onTransferStart(const QByteArray &payload)
{
    const auto start = TransferMessages::Start::fromPayload(payload);
    qCDebug(logPipeline) << "Received TransferStart: fileCount=" << start.fileCount
                         << "totalSize=" << start.totalSize;
}

void MigrationRun::onFileHeader(const QByteArray &payload)
{
    qCDebug(logPipeline) << ">>> FileHeader CASE ENTERED! payload:" << payload.size();
    qCDebug(logPipeline) << ">>> WARNING: m_receiverWorker is NULL! File will fail!";
}

void MigrationRun::onFileAck(const QByteArray &payload)
{
    const auto ack = TransferMessages::Ack::fromPayload(payload);
    qCDebug(logPipeline) << ">>> FileAck CASE ENTERED! payload:" << payload.size();
    qCDebug(logPipeline) << ">>> Raw payload:" << payload.first(std::min(payload.size(), TracedPayloadBytes));
    qCDebug(logPipeline) << ">>> FileAck isRequest:" << ack.isRequest;
    qCDebug(logPipeline) << (ack.isRequest ? ">>> This is a BatchAckRequest!"
                                           : ">>> This is a BatchAck response (for sender)");
    if (ack.isRequest)
        onAnswerRequest(ack);
    else
        onAnswer(ack);
}

void MigrationRun::onAnswerRequest(const TransferMessages::Ack &)
{
    qCDebug(logPipeline) << ">>> ERROR: m_receiverWorker is NULL! Cannot process BatchAckRequest!";
}

void MigrationRun::onAnswer(const TransferMessages::Ack &)
{
    qCDebug(logPipeline) << ">>> ERROR: m_senderWorker is NULL! Cannot process BatchAck!";
}

void MigrationRun::onTransferComplete()
{
    qCDebug(logPipeline) << "WARNING: m_receiverWorker is null!";
}

} // namespace Zandrove
