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

} // namespace

MigrationManager::MigrationManager(QObject *parent)
    : QObject(parent)
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

void MigrationManager::setRole(int role)
{
    if (role != m_role)
        endSession();
    m_role = role;
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
    forward(run);
    qCDebug(logPipeline) << "MigrationManager::setupConnections() - role:" << roleName(m_role);
    Q_EMIT started();
    run->begin();
    resumeReadingLink();
}

void MigrationManager::forward(const MigrationRun *run)
{
    using Run = MigrationRun;
    using Face = MigrationManager;
    connect(run, &Run::ended, this, &Face::onRunEnded);
    connect(run, &Run::stateChanged, this, &Face::onRunStateChanged);
    connect(run, &Run::paused, this, &Face::paused);
    connect(run, &Run::resumed, this, &Face::resumed);
    connect(run, &Run::pausedByPeer, this, &Face::pausedByPeer);
    connect(run, &Run::resumedByPeer, this, &Face::resumedByPeer);
    connect(run, &Run::progressChanged, this, &Face::progressChanged);
    connect(run, &Run::failed, this, &Face::failed);
    connect(run, &Run::fileTransferStarted, this, &Face::fileTransferStarted);
    connect(run, &Run::fileTransferProgress, this, &Face::fileTransferProgress);
    connect(run, &Run::fileTransferCompleted, this, &Face::fileTransferCompleted);
    connect(run, &Run::fileTransferFailed, this, &Face::fileTransferFailed);
    connect(run, &Run::appInstallProgress, this, &Face::appInstallProgress);
    connect(run, &Run::appInstallFinished, this, &Face::appInstallFinished);
    connect(run, &Run::appOutcome, this, &Face::appOutcome);
    connect(run, &Run::settingOutcome, this, &Face::settingOutcome);
    connect(run, &Run::settingsFinished, this, &Face::settingsFinished);
    connect(run, &Run::itemSettled, this, &Face::itemSettled);
    connect(run, &Run::spaceShort, this, &Face::spaceShort);
    connect(run, &Run::installing, this, &Face::installing);
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

} // namespace Zandrove
