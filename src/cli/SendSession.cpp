#include "cli/SendSession.h"

#include "cli/FolderCheck.h"
#include "cli/PeerMatch.h"
#include "core/engine/TransferEngine.h"
#include "support/PeerChoice.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Zandrove::Cli {

namespace {

// A peer's new code enters the table without a signal, so the table is looked at again and again.
constexpr auto LookInterval = 250ms;

// Everybody announces himself twice a second: whoever else goes by the same code or name has been heard by
// then, and each address of a peer.
constexpr auto TimeToBeSure = 600ms;

// Nothing is heard where datagrams are blocked, but an address can be dialled unheard. In cable mode the
// sweep does.
constexpr auto TimeToDialUnheard = 5000ms;

// A New PC with a window goes to its receiving page half a second after pairing and
// takes only what comes then.
constexpr auto SettleTime = 1000ms;

// How long the end of a run may take to be told once its link is gone.
constexpr auto PartingTime = 2000ms;

} // namespace

SendSession::SendSession(const Options &options, TransferEngine &engine, Output &output, QObject *parent)
    : Session(options, engine, output, parent)
    , m_notices(engine, output, options.target, this)
    , m_folders(options.folders)
    , m_staysForMore(options.control)
{
    connect(&m_lookTimer, &QTimer::timeout, this, &SendSession::look);
    m_timeoutTimer.setSingleShot(true);
    connect(&m_timeoutTimer, &QTimer::timeout, this, &SendSession::onTimeout);
}

void SendSession::start()
{
    connectEngine();
    showRuns();
    if (options().control)
        readInput();
    engine().setRole(options().role);
    engine().setMode(options().mode);
    if (needsScan(options()))
        engine().startScan();
    else
        startLooking();
}

void SendSession::onScanCompleted(const ScanResult &result)
{
    m_choice = chooseItems(result, options());
    if (m_choice.problem.isEmpty()) {
        startLooking();
        return;
    }
    output().error(m_choice.problem);
    finish(WrongUsage);
}

void SendSession::startLooking()
{
    m_state = State::Looking;
    if (options().timeout)
        m_timeoutTimer.start(*options().timeout);
    engine().startDiscovery();
    m_notices.lookingBegins();
    m_lookTimer.start(LookInterval);
}

void SendSession::connectEngine()
{
    TransferEngine *source = &engine();
    connect(source, &TransferEngine::pcDiscovered, this, [this](const PCInfo &pc) { output().peer(pc); });
    connect(source, &TransferEngine::pcLost, this,
            [this](const QString &id, quint64 key) { output().peerLost(id, key); });
    connect(source, &TransferEngine::scanProgress, this, [this](int percent, const QString &item, int apps) {
        if (progressIsDue())
            output().scanning(percent, item, apps);
    });
    connect(source, &TransferEngine::scanCompleted, this, &SendSession::onScanCompleted);
    connect(source, &TransferEngine::waitingForAnswer, this, [this] { m_reached = true; });
    connect(source, &TransferEngine::connected, this, &SendSession::onConnected);
    connect(source, &TransferEngine::connectionFailed, this, &SendSession::onConnectionFailed);
    connect(source, &TransferEngine::connectionRequested, this, &SendSession::onConnectionRequested);
    connect(source, &TransferEngine::disconnected, this, &SendSession::onDisconnected);
    connect(source, &TransferEngine::sessionEndReceived, this, &SendSession::onSessionEndReceived);
    connect(source, &TransferEngine::runEnded, this, &SendSession::onRunEnded);
    connect(source, &TransferEngine::runRevised, this, [this](const RunSummary &summary) {
        showRevision(summary);
        m_results.record(exitCodeFor(summary));
    });
    connect(source, &TransferEngine::peerCancelled, this, &SendSession::onPeerCancelled);
    connect(source, &TransferEngine::transferFailed, this, &SendSession::onTransferFailed);
}

void SendSession::look()
{
    const QList<PCInfo> peers = findPeers(engine().discoveredPCs(), options().target);
    const bool dialsUnheard = isAddress(options().target);
    if (!m_lookingFor.isValid() || (peers.isEmpty() && !dialsUnheard))
        m_lookingFor.start();
    if (peers.size() > 1 && m_lookingFor.hasExpired(TimeToBeSure.count())) {
        output().error(tr("More than one PC goes by %1: %2. Name the one that is meant by its address.")
                           .arg(options().target, describedPeers(peers)));
        finish(WrongUsage);
    } else if (peers.size() == 1 && m_lookingFor.hasExpired(TimeToBeSure.count())) {
        dial(peers.first());
    } else if (peers.isEmpty() && m_lookingFor.hasExpired(TimeToDialUnheard.count())) {
        PCInfo unheard;
        unheard.name = unheard.ip = options().target;
        dial(unheard);
    }
}

void SendSession::dial(const PCInfo &pc)
{
    m_lookTimer.stop();
    m_state = State::Dialling;
    setLink(Link::Pending);
    m_peerName = pc.name;
    m_reached = false;
    if (!pc.id.isEmpty())
        output().found(pc);
    if (isAddress(options().target))
        engine().connectToAddress(options().target);
    else if (pc.verifyCode == options().target)
        engine().connectByCode(options().target);
    else
        engine().connectToPC(pc);
}

void SendSession::onConnected()
{
    m_timeoutTimer.stop();
    m_lookTimer.stop();
    m_state = State::Settling;
    setLink(Link::Up);
    const PCInfo peer = connectedPeer();
    m_peerName = peer.name;
    output().connected(peer);
    engine().stopDiscovery();
    QTimer::singleShot(SettleTime, this, [this] {
        if (m_state == State::Settling && !isFinishing())
            sendSelection();
    });
}

void SendSession::onConnectionFailed(const QString &reason)
{
    if (link() == Link::Up || (m_state == State::Dialling && !m_reached && isAddress(options().target))) {
        onDisconnected(); // the other PC may not be ready yet
        return;
    }
    output().error(reason);
    setLink(Link::None);
    finish(RunFailed);
}

void SendSession::onConnectionRequested(const QString &name)
{
    refuseLastRequest();
    output().refused(name, tr("this PC is sending to %1.").arg(options().target));
}

void SendSession::onDisconnected()
{
    if (m_state == State::Dialling) {
        // Another connection came in and took the place of the unanswered one, as a cable sweep does.
        m_state = State::Looking;
        setLink(Link::None);
        m_lookingFor.start();
        m_lookTimer.start(LookInterval);
        return;
    }
    linkOver(tr("The link to %1 broke.").arg(m_peerName));
}

void SendSession::onSessionEndReceived()
{
    linkOver(tr("%1 ended the session.").arg(m_peerName));
}

void SendSession::linkOver(const QString &complaint)
{
    if (link() != Link::Up || isFinishing())
        return;
    setLink(Link::None);
    output().disconnected();
    m_complaint = complaint;
    const State state = std::exchange(m_state, State::Parting);
    engine().disconnectFromPeer();
    if (state == State::Running) {
        QTimer::singleShot(PartingTime, this, [this] { endBrokenRun(engine().summary()); });
        return;
    }
    if (state != State::Resting)
        output().error(complaint);
    finish(state == State::Resting ? m_results.exitCode() : RunFailed);
}

void SendSession::endBrokenRun(const RunSummary &summary)
{
    if (isFinishing())
        return;
    output().error(m_complaint);
    showReport(summary);
    finish(RunFailed);
}

void SendSession::sendSelection()
{
    m_state = State::Running;
    engine().setSelectedPaths(m_folders);
    engine().setSelectedApps(m_choice.apps);
    engine().setSelectedSettings(m_choice.settings);
    engine().startTransfer();
}

void SendSession::sendAgain(const QString &folder)
{
    if (!folder.isEmpty()) {
        const QString path = absoluteFolder(folder);
        const QString problem = folderProblem(path);
        if (!problem.isEmpty()) {
            output().error(problem);
            return;
        }
        m_folders = {path};
        m_choice = {};
    }
    if (m_completed)
        engine().notifyPeerReadyForNew();
    sendSelection();
}

void SendSession::onRunEnded(const RunSummary &summary)
{
    if (summary.end == RunEnd::CancelledHere)
        showReport(summary);
    if (summary.end == RunEnd::CancelledHere || (m_state != State::Running && m_state != State::Parting))
        return;
    m_completed = summary.end == RunEnd::Complete;
    // The last answers may have come ahead of the end of the link; a further run would need another one.
    if (m_state == State::Parting)
        m_staysForMore = false;
    if (summary.end == RunEnd::LinkLost || (m_state == State::Parting && !m_completed)) {
        linkOver(tr("The link to %1 broke.").arg(m_peerName));
        endBrokenRun(summary);
        return;
    }
    if (summary.end == RunEnd::Reset)
        output().error(tr("%1 ended the transfer.").arg(m_peerName));
    showReport(summary);
    runEnded(exitCodeFor(summary));
}

void SendSession::onPeerCancelled()
{
    if (m_state == State::Running)
        output().cancelled(Side::Peer);
}

void SendSession::onTransferFailed(const QString &reason)
{
    output().error(reason);
    m_completed = false;
    runEnded(RunFailed);
}

void SendSession::cancelHere()
{
    output().cancelled(Side::Here);
    engine().cancelTransfer();
    m_completed = false;
}

void SendSession::runEnded(ExitCode exitCode)
{
    m_state = State::Resting;
    m_results.record(exitCode);
    if (!m_staysForMore)
        finish(m_results.exitCode());
}

void SendSession::onInputEnded()
{
    m_staysForMore = false;
    if (m_state == State::Resting)
        finish(m_results.exitCode());
}

bool SendSession::obey(const ControlCommand &command)
{
    switch (command.kind) {
    case ControlCommand::Yes:
    case ControlCommand::No:
        return false;
    case ControlCommand::Cancel:
        if (m_state == State::Running) {
            cancelHere();
            runEnded(Cancelled);
        }
        return true;
    case ControlCommand::Again:
        if (m_state == State::Resting)
            sendAgain(command.folder);
        else
            output().warning(tr("There is no finished transfer to follow."));
        return true;
    case ControlCommand::End:
        onInputEnded();
        return true;
    default:
        return Session::obey(command);
    }
}

void SendSession::onTimeout()
{
    output().error(m_state == State::Looking
                       ? tr("%1 was not found within %2 seconds.")
                             .arg(options().target, QString::number(options().timeout->count()))
                       : tr("%1 did not answer within %2 seconds.")
                             .arg(m_peerName, QString::number(options().timeout->count())));
    finish(TimedOut);
}

void SendSession::onInterrupt()
{
    if (m_state == State::Scanning)
        engine().cancelScan();
    if (m_state == State::Running)
        cancelHere();
    finish(Cancelled);
}

} // namespace Zandrove::Cli
