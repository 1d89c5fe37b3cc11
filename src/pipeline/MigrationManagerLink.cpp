// MigrationManager: what comes by the link, and what becomes of the run when that changes.

#include "peer/NetworkManager.h"
#include "pipeline/Log.h"
#include "pipeline/MigrationManager.h"
#include "pipeline/ReceivingRun.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

constexpr int FirstTransferType = int(MessageType::SessionEnd);
constexpr int LastTransferType = int(MessageType::SettingComplete);

} // namespace

void MigrationManager::setNetworkManager(NetworkManager *networkManager)
{
    if (m_networkManager == networkManager)
        return;
    if (m_networkManager)
        QObject::disconnect(m_networkManager, nullptr, this, nullptr);
    m_networkManager = networkManager;
    setLink(RunLink::over(networkManager));
    if (networkManager)
        connect(networkManager, &NetworkManager::commandReceived, this,
                &MigrationManager::onLinkCommandReceived);
}

void MigrationManager::setLink(RunLink link)
{
    if (m_link.setGate)
        m_link.setGate({});
    m_link = std::move(link);
    if (m_link.setGate)
        m_link.setGate([this] { return mayReadLink(); });
    if (m_link.watch)
        m_link.watch(this, [this] { onLinkChanged(); });
    if (m_link.watchBreaks)
        m_link.watchBreaks(this, [this] { onCutOff(RunEnd::LinkLost); });
}

/// The run in hand may have lost its link, to nobody or to another peer. What waits behind it came by that
/// link.
void MigrationManager::onLinkChanged()
{
    if (std::exchange(m_knownLink, m_link.number()) != m_link.number())
        (void)m_inbox.drop();
    m_aftermath.noteLink(m_link.number());
    if (!isMigrating() || m_run->belongsTo(m_link.number()))
        return;
    endSession();
    m_run->end(RunEnd::LinkLost);
}

void MigrationManager::onCutOff(RunEnd how)
{
    const std::optional<RunSummary> revised = m_aftermath.cutOff(how);
    if (!revised)
        return;
    m_summary = *revised;
    Q_EMIT runRevised(m_summary);
}

/// Whether there is a peer that this side said yes to, and the run is one with that peer.
bool MigrationManager::isLinkOfRun() const
{
    const quint64 link = m_link.number();
    return link != 0 && (!isMigrating() || m_run->belongsTo(link));
}

void MigrationManager::onLinkCommandReceived(MessageType type, const QByteArray &payload)
{
    // The end of a session concerns whoever is paired, also when a run still stands
    // that began with somebody else.
    const bool isOurs = type == MessageType::SessionEnd ? m_link.number() != 0 : isLinkOfRun();
    if (!isOurs) {
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
    m_inbox.trace(type, payload.size());
    if (!m_inbox.keep(type, payload, runState(), m_run && m_run->isPaused()))
        process(type, payload);
    else
        boundWaitForSettings();
}

/// What waits behind them doesn't wait for ever.
void MigrationManager::boundWaitForSettings()
{
    if (receivingRun() && !m_inbox.isEmpty() && runState() == RunState::Settling)
        receivingRun()->boundSettings();
}

void MigrationManager::processInbox()
{
    while (const std::optional<RunMessage> message = m_inbox.take(runState()))
        process(message->type, message->payload);
    boundWaitForSettings();
    resumeReadingLink();
}

void MigrationManager::dropInbox()
{
    if (m_inbox.drop())
        QMetaObject::invokeMethod(
            this, [this] { process(MessageType::SessionEnd, {}); }, Qt::QueuedConnection);
}

void MigrationManager::process(MessageType type, const QByteArray &payload)
{
    if (type == MessageType::SessionEnd) {
        qCDebug(logPipeline) << "Received SessionEnd from peer";
        endSession();
        m_aftermath.close();
        Q_EMIT sessionEndReceived();
        return;
    }
    if (type == MessageType::Heartbeat) {
        if (TransferMessages::saysSettled(payload))
            m_aftermath.settled(isMigrating() && m_run->hasAllLeft());
        return;
    }
    if (type == MessageType::TransferCancel)
        onCutOff(RunEnd::CancelledThere);
    if (!isMigrating() && !admitWhileIdle(type))
        return;
    if (int(type) >= FirstTransferType && int(type) <= LastTransferType)
        m_run->handle(type, payload);
}

/// Whether a message that arrives with no run on goes on to the one that it has begun.
bool MigrationManager::admitWhileIdle(MessageType type)
{
    if (type == MessageType::TransferStart && m_role == NewPC) {
        qCDebug(logPipeline) << "Received TransferStart while not migrating - restarting receiver";
        m_waits = true;
        beginReceiving();
        Q_EMIT newTransferStarted();
        return isMigrating();
    }
    if (type == MessageType::TransferReset) {
        qCDebug(logPipeline) << "Received TransferReset while not migrating";
        retire();
        waitAgain(0ms);
        Q_EMIT transferReset();
        return false;
    }
    qCDebug(logPipeline) << "WARNING: Ignoring command because m_migrating is false!";
    return false;
}

/// While something waits for the run in front of it, more is not taken in.
bool MigrationManager::mayReadLink() const
{
    const RunState state = runState();
    if (!m_inbox.isEmpty() && (state == RunState::WorkingOff || state == RunState::Settling) &&
        !m_run->isPaused())
        return false;
    return !m_run || m_run->mayReadLink();
}

void MigrationManager::resumeReadingLink()
{
    if (m_link.resumeReading)
        m_link.resumeReading();
}

} // namespace Zandrove
