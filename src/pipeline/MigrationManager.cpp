#include "pipeline/MigrationManager.h"

#include "peer/NetworkManager.h"
#include "pipeline/Log.h"
#include "pipeline/ReceivingRun.h"
#include "pipeline/SendingRun.h"
#include "support/Json.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

// Gives the peer time to hear of a cancel before what it sends is taken again.
constexpr auto DelayAfterPeerCancel = 100ms;
constexpr auto DelayAfterCancel = 200ms;
constexpr int FirstTransferType = int(MessageType::SessionEnd);
constexpr int LastTransferType = int(MessageType::SettingComplete);

} // namespace

MigrationManager::MigrationManager(QObject *parent)
    : RunEvents(parent)
{
    m_waitAgainTimer.setSingleShot(true);
    connect(&m_waitAgainTimer, &QTimer::timeout, this, &MigrationManager::wait);
}

MigrationManager::~MigrationManager()
{
    cancel();
    setLink({});
    retire();
    for (MigrationRun *run : std::as_const(m_past))
        run->waitForThreads();
}

bool MigrationManager::isMigrating() const
{
    return m_run && m_run->isOn();
}

bool MigrationManager::isUnderWay() const
{
    return isMigrating() && m_run->hasBegun();
}

RunSummary MigrationManager::summary() const
{
    return m_run ? m_run->summary() : m_summary;
}

ReceivingRun *MigrationManager::receivingRun() const
{
    return qobject_cast<ReceivingRun *>(m_run);
}

bool MigrationManager::isApplyingSettings() const
{
    return receivingRun() && receivingRun()->isApplyingSettings();
}

RunState MigrationManager::runState() const
{
    return m_run ? m_run->state() : RunState::None;
}

void MigrationManager::start(const QList<AppInfo> &apps, const QList<FolderInfo> &folders,
                             const QList<AccountInfo> &, const QList<SettingInfo> &settings)
{
    if (isMigrating())
        return;
    if (m_role == NewPC)
        return startReceiving();
    endSession();
    retire();
    m_aftermath.close();
    beginRun(new SendingRun(m_link, {apps, folders, settings, m_conflictConfig.policy}, this));
}

void MigrationManager::startReceiving()
{
    m_role = NewPC;
    m_waits = true;
    if (!isMigrating())
        beginReceiving();
}

void MigrationManager::beginReceiving()
{
    m_waitAgainTimer.stop();
    retire();
    beginRun(new ReceivingRun(m_link, {m_destRoot, m_conflictConfig.policy}, this));
}

/// Whatever the last runs still have to do on the disk is done before the next one begins.
void MigrationManager::beginRun(MigrationRun *run)
{
    for (MigrationRun *past : std::as_const(m_past))
        past->waitForThreads();
    m_run = run;
    connect(run, &MigrationRun::ended, this, &MigrationManager::onRunEnded);
    connect(run, &MigrationRun::stateChanged, this, &MigrationManager::onRunStateChanged);
    repeat(run);
    qCDebug(logPipeline) << "MigrationManager::setupConnections() - role:" << roleName(m_role);
    Q_EMIT started();
    run->begin();
    resumeReadingLink();
}

/// What the run was is over; what its threads still do, nobody hears of.
void MigrationManager::retire()
{
    MigrationRun *run = std::exchange(m_run, nullptr);
    if (!run)
        return;
    QObject::disconnect(run, nullptr, this, nullptr);
    run->end(RunEnd::Reset);
    run->closeLedger();
    m_summary = run->summary();
    tellSettled(*run);
    m_past.append(run);
    connect(run, &MigrationRun::gone, this, [this, run] {
        m_past.removeOne(run);
        run->deleteLater();
    });
}

/// The Old PC's user is told of a loss only where something was still open.
void MigrationManager::tellSettled(const MigrationRun &run)
{
    const bool brought = m_summary.apps.total() + m_summary.settings.total() > 0;
    if (m_summary.role == NewPC && m_summary.end == RunEnd::Complete && brought && m_link.send &&
        run.belongsTo(m_link.number()))
        m_link.send(MessageType::Heartbeat, TransferMessages::settledPayload());
}

void MigrationManager::onRunEnded(RunEnd how, const MigrationReport &report)
{
    const bool hasBegun = m_run->hasBegun();
    const RunSummary summary = m_run->summary();
    if (runState() != RunState::Settling)
        retire();
    resumeReadingLink();
    switch (how) {
    case RunEnd::Complete:
        m_aftermath.begin(summary, m_link.number());
        Q_EMIT completed(report);
        qCDebug(logPipeline) << "All migration completed!";
        break;
    case RunEnd::CancelledHere:
        dropInbox();
        waitAgain(DelayAfterCancel);
        Q_EMIT cancelled();
        break;
    case RunEnd::CancelledThere:
        waitAgain(DelayAfterPeerCancel);
        Q_EMIT peerCancelled();
        break;
    case RunEnd::Reset:
        waitAgain(0ms);
        Q_EMIT transferReset();
        break;
    case RunEnd::LinkLost:
        waitAgain(0ms); // for a peer that has come meanwhile
        break;
    case RunEnd::Running:
        break;
    }
    if (hasBegun)
        Q_EMIT runEnded(summary);
    processInbox();
}

void MigrationManager::onRunStateChanged()
{
    resumeReadingLink();
    if (isMigrating() || runState() == RunState::Settling)
        return;
    retire();
    processInbox();
}

void MigrationManager::wait()
{
    // The peer may have begun anew before the delay was over.
    if (!m_waits || isMigrating())
        return;
    qCDebug(logPipeline) << "MigrationManager::restartReceiving()";
    beginReceiving();
    qCDebug(logPipeline) << "Receiver restarted, waiting for new transfer";
    Q_EMIT waiting();
}

void MigrationManager::pause()
{
    if (m_run)
        m_run->pause();
}

void MigrationManager::resume()
{
    if (m_run)
        m_run->resume();
}

void MigrationManager::cancel()
{
    if (!isMigrating())
        return;
    qCDebug(logPipeline) << "MigrationManager::cancel()";
    m_run->end(RunEnd::CancelledHere);
}

void MigrationManager::sendCancelNotification(const QJsonObject &notification)
{
    if (m_link.send && isLinkOfRun() && !(m_run && m_run->isLinkLost()))
        m_link.send(MessageType::TransferCancel, compactJson(notification));
}

void MigrationManager::resetAndListen()
{
    qCDebug(logPipeline) << "MigrationManager::resetAndListen()";
    if (isMigrating() && m_run->isLinkLost())
        return;
    dropInbox();
    m_waitAgainTimer.stop();
    retire();
    resumeReadingLink();
}

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

} // namespace Zandrove
