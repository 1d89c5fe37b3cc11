// What arrives from the peer.

#include "peer/NetworkManager.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/Log.h"
#include "pipeline/MigrationManager.h"
#include "pipeline/ReceivedApps.h"
#include "pipeline/TransferMessages.h"
#include "settings/SettingMigrator.h"

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

constexpr auto RearmDelay = 100ms;
constexpr int TracedMessages = 100;
constexpr qsizetype TracedPayloadBytes = 300;
constexpr int FirstTransferType = int(MessageType::SessionEnd);
constexpr int LastTransferType = int(MessageType::SettingComplete);

void traceMessage(MessageType type, qsizetype size)
{
    static int count = 0;
    ++count;
    if (type == MessageType::FileData || (count > TracedMessages && type != MessageType::FileHeader))
        return;
    qCDebug(logPipeline) << "MSG#" << count << "type:" << Qt::showbase << Qt::hex << int(type) << Qt::dec
                         << int(type) << "size:" << size;
}

bool beginsOrResets(MessageType type)
{
    return type == MessageType::TransferStart || type == MessageType::TransferReset;
}

} // namespace

void MigrationManager::onLinkCommandReceived(MessageType type, const QByteArray &payload)
{
    const bool accepted = m_networkManager && m_networkManager->isAccepted();
    // The end of a session concerns whoever is paired, also when a run still stands that began with somebody
    // else.
    if (!accepted || (type != MessageType::SessionEnd && !isLinkOfRun())) {
        if (!m_strangerLogged)
            qCDebug(logPipeline)
                << "Ignoring messages on a link that is not accepted or not that of the run, type:"
                << int(type);
        m_strangerLogged = true;
        return;
    }
    m_strangerLogged = false;
    onNetworkCommandReceived(type, payload);
}

void MigrationManager::onNetworkCommandReceived(MessageType type, const QByteArray &payload)
{
    traceMessage(type, payload.size());
    if (!mustWait(type)) {
        process(type, payload);
        return;
    }
    m_deferred.append({type, payload});
    if (m_deferred.size() == 1)
        boundWaitForSettings();
}

/// Between the last message of a run and its report the receiver still works off what is queued, and behind
/// the report the settings are still applied: what begins or resets a run waits for that, and so does what
/// follows it.
bool MigrationManager::mustWait(MessageType type) const
{
    if (type == MessageType::TransferPause || type == MessageType::TransferResume)
        return false;
    if (type == MessageType::SessionEnd && m_paused)
        return false;
    return !m_deferred.isEmpty() || (m_completing && type == MessageType::SessionEnd) ||
           ((m_completing || isSettling()) && beginsOrResets(type));
}

void MigrationManager::processDeferred()
{
    while (!m_deferred.isEmpty() && !m_completing) {
        if (isSettling() && beginsOrResets(m_deferred.constFirst().type)) {
            boundWaitForSettings();
            return;
        }
        const Message message = m_deferred.takeFirst();
        process(message.type, message.payload);
    }
    resumeReadingLink();
}

/// A program of the system that never ends must not keep the peer out for good.
void MigrationManager::boundWaitForSettings()
{
    if (!isSettling())
        return;
    QTimer::singleShot(SettingsDeadline, this, [this, run = m_run] {
        if (run != m_run || !isSettling())
            return;
        m_settingsOwed = false;
        processDeferred();
    });
}

/// The run in front of them has been called off. The end of the session stands all the same.
void MigrationManager::dropDeferred()
{
    const QList<Message> dropped = std::exchange(m_deferred, {});
    const bool sessionEnded = std::any_of(dropped.cbegin(), dropped.cend(), [](const Message &message) {
        return message.type == MessageType::SessionEnd;
    });
    if (sessionEnded)
        QMetaObject::invokeMethod(
            this, [this] { process(MessageType::SessionEnd, {}); }, Qt::QueuedConnection);
}

void MigrationManager::process(MessageType type, const QByteArray &payload)
{
    if (type == MessageType::SessionEnd) {
        qCDebug(logPipeline) << "Received SessionEnd from peer";
        endSession();
        Q_EMIT sessionEndReceived();
        return;
    }
    if (!m_migrating && !admitWhileIdle(type))
        return;
    if (int(type) < FirstTransferType || int(type) > LastTransferType)
        return;
    dispatch(type, payload);
}

/// Whether a message that arrives with no run on goes on to its handler.
bool MigrationManager::admitWhileIdle(MessageType type)
{
    if (type == MessageType::TransferStart && m_role == NewPC) {
        qCDebug(logPipeline) << "Received TransferStart while not migrating - restarting receiver";
        restartForNewTransfer();
        return true;
    }
    if (type == MessageType::TransferReset) {
        qCDebug(logPipeline) << "Received TransferReset while not migrating";
        resetRun();
        Q_EMIT transferReset();
        return false;
    }
    qCDebug(logPipeline) << "WARNING: Ignoring command because m_migrating is false!";
    return false;
}

void MigrationManager::restartForNewTransfer()
{
    resetRun();
    stopWorkers();
    clearReportCounters();
    setupConnections();
    m_migrating = true;
    m_startTime = QDateTime::currentDateTime();
    startEverythingReceiving();
    Q_EMIT newTransferStarted();
}

void MigrationManager::dispatch(MessageType type, const QByteArray &payload)
{
    switch (type) {
    case MessageType::SessionEnd:
        qCDebug(logPipeline) << "Received SessionEnd from peer (in switch - should not reach here)";
        Q_EMIT sessionEndReceived();
        break;
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
        handlePeerCancel();
        break;
    case MessageType::TransferComplete:
        onTransferComplete();
        break;
    case MessageType::TransferReset:
        onTransferReset();
        break;
    case MessageType::AppStart:
        onAppStart(payload);
        break;
    case MessageType::AppEnd:
        onAppEnd(payload);
        break;
    default:
        dispatchSetting(type, payload);
        break;
    }
}

void MigrationManager::dispatchSetting(MessageType type, const QByteArray &payload)
{
    const bool isReceiver = m_role == NewPC && m_settingMigrator;
    switch (type) {
    case MessageType::SettingStart:
        qCDebug(logPipeline) << ">>> SettingStart received";
        if (isReceiver)
            onSettingStart(payload);
        break;
    case MessageType::SettingData:
        if (isReceiver)
            tellSettingMigrator(&SettingMigrator::onSettingData, payload);
        break;
    case MessageType::SettingEnd:
        qCDebug(logPipeline) << ">>> SettingEnd received";
        if (isReceiver)
            tellSettingMigrator(&SettingMigrator::onSettingEnd, payload);
        break;
    case MessageType::SettingComplete:
        qCDebug(logPipeline) << ">>> SettingComplete received";
        if (isReceiver)
            onSettingComplete(payload);
        break;
    default:
        break;
    }
}

void MigrationManager::onTransferStart(const QByteArray &payload)
{
    const auto start = TransferMessages::Start::fromPayload(payload);
    qCDebug(logPipeline) << "Received TransferStart: fileCount=" << start.fileCount
                         << "totalSize=" << start.totalSize;
    ++m_rearmTicket;
    m_incomingRun = true;
    if (!m_receiverWorker)
        return;
    QMetaObject::invokeMethod(
        m_receiverWorker,
        [receiver = m_receiverWorker, start] { receiver->setTotalInfo(start.fileCount, start.totalSize); },
        Qt::QueuedConnection);
}

void MigrationManager::onFileHeader(const QByteArray &payload)
{
    qCDebug(logPipeline) << ">>> FileHeader CASE ENTERED! payload:" << payload.size();
    const auto header = TransferMessages::Header::fromPayload(payload);
    qCDebug(logPipeline) << ">>> FileHeader:" << header.relativePath << header.fileSize << header.taskId;
    m_receivedApps->countFileIn(header.relativePath);
    if (!m_receiverWorker) {
        qCDebug(logPipeline) << ">>> WARNING: m_receiverWorker is NULL! File will fail!";
        return;
    }
    QMetaObject::invokeMethod(
        m_receiverWorker,
        [receiver = m_receiverWorker, header] {
            receiver->onFileHeader(header.relativePath, header.fileSize, 0, header.taskId);
        },
        Qt::QueuedConnection);
}

void MigrationManager::onFileData(const QByteArray &payload)
{
    if (!m_receiverWorker)
        return;
    m_receiverWorker->addInflow(payload.size());
    QMetaObject::invokeMethod(
        m_receiverWorker, [receiver = m_receiverWorker, payload] { receiver->onFileData(payload); },
        Qt::QueuedConnection);
}

void MigrationManager::onFileEnd(const QByteArray &payload)
{
    if (!m_receiverWorker)
        return;
    const auto end = TransferMessages::End::fromPayload(payload);
    QMetaObject::invokeMethod(
        m_receiverWorker,
        [receiver = m_receiverWorker, end] {
            receiver->onFileEnd(end.relativePath, end.checksum, end.taskId, end.changed);
        },
        Qt::QueuedConnection);
    const QString completeApp = m_receivedApps->countFileOut(end.relativePath);
    if (!completeApp.isEmpty())
        installWhenWritten(completeApp);
}

void MigrationManager::onFileAck(const QByteArray &payload)
{
    qCDebug(logPipeline) << ">>> FileAck CASE ENTERED! payload:" << payload.size();
    qCDebug(logPipeline) << ">>> Raw payload:" << payload.first(std::min(payload.size(), TracedPayloadBytes));
    const auto ack = TransferMessages::Ack::fromPayload(payload);
    qCDebug(logPipeline) << ">>> FileAck isRequest:" << ack.isRequest;
    if (ack.isRequest) {
        qCDebug(logPipeline) << ">>> This is a BatchAckRequest!";
        if (!m_receiverWorker) {
            qCDebug(logPipeline) << ">>> ERROR: m_receiverWorker is NULL! Cannot process BatchAckRequest!";
            return;
        }
        qCDebug(logPipeline) << ">>> Calling onBatchAckRequest: batchId=" << ack.batchId
                             << "startTaskId=" << ack.startTaskId << "endTaskId=" << ack.endTaskId;
        // Queued, so that the answer stands behind all chunks of the batch.
        QMetaObject::invokeMethod(
            m_receiverWorker,
            [receiver = m_receiverWorker, ack] {
                receiver->onBatchAckRequest(ack.batchId, ack.startTaskId, ack.endTaskId);
            },
            Qt::QueuedConnection);
        qCDebug(logPipeline) << ">>> onBatchAckRequest invoked!";
        return;
    }
    qCDebug(logPipeline) << ">>> This is a BatchAck response (for sender)";
    if (!m_senderWorker) {
        qCDebug(logPipeline) << ">>> ERROR: m_senderWorker is NULL! Cannot process BatchAck!";
        return;
    }
    qCDebug(logPipeline) << ">>> Calling onBatchAckReceived: batchId=" << ack.batchId
                         << "success=" << ack.success << "failedCount=" << ack.namedFiles.size();
    // Directly: the worker's thread is blocked waiting for this answer.
    m_senderWorker->onBatchAckReceived(ack.batchId, ack.success, ack.namedPaths());
    qCDebug(logPipeline) << ">>> onBatchAckReceived invoked!";
}

void MigrationManager::onPeerPause()
{
    if (m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::onPeerPause() - peer requested pause";
    m_pausedByPeer = true;
    setWorkersPaused(true);
    Q_EMIT pausedByPeer();
}

void MigrationManager::onPeerResume()
{
    if (!m_paused)
        return;
    qCDebug(logPipeline) << "MigrationManager::onPeerResume() - peer requested resume";
    setWorkersPaused(false);
    Q_EMIT resumedByPeer();
}

void MigrationManager::handlePeerCancel()
{
    qCDebug(logPipeline) << "Received TransferCancel from peer";
    qCDebug(logPipeline) << "MigrationManager::handlePeerCancel()";
    m_migrating = false;
    m_settingsOwed = false;
    cancelWorkersQueued();
    resetRun();
    if (m_role == NewPC) {
        QTimer::singleShot(RearmDelay, this, [this, ticket = m_rearmTicket] {
            if (ticket == m_rearmTicket)
                restartReceiving();
        });
    }
    Q_EMIT peerCancelled();
}

void MigrationManager::onTransferComplete()
{
    qCDebug(logPipeline) << "Received TransferComplete message!";
    if (m_role == NewPC) {
        qCDebug(logPipeline) << "Receiver: Marking all phases as done";
        appMigrationDone = true;
        appFilesAllQueued = true;
        settingPhaseDone = true;
        if (m_settingsBegun)
            m_settingsRun = -1; // the peer forgot to say that they are complete
        // Whoever has ended its run has nothing left to resume.
        if (m_pausedByPeer)
            onPeerResume();
    }
    if (!m_receiverWorker) {
        qCDebug(logPipeline) << "WARNING: m_receiverWorker is null!";
        return;
    }
    qCDebug(logPipeline) << "Calling receiverWorker->onTransferComplete()";
    m_completing = true;
    QMetaObject::invokeMethod(m_receiverWorker, &FileReceiverWorker::onTransferComplete,
                              Qt::QueuedConnection);
}

void MigrationManager::onTransferReset()
{
    qCDebug(logPipeline) << "Received TransferReset - peer wants to restart";
    resetRun();
    Q_EMIT transferReset();
}

} // namespace Zandrove
