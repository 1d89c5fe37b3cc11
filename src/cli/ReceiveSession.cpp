#include "cli/ReceiveSession.h"

#include "core/engine/TransferEngine.h"
#include "platform/Terminal.h"

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove::Cli {

namespace {

constexpr auto GoodbyeTime = 3000ms;

// How long a peer that has left may have something on its way of which nothing has been seen.
constexpr auto PatienceBeforeFirstSign = 1s;

// How long the settings that have arrived may take to be applied before the report is shown without them.
constexpr auto SettingsTime = 5min;

bool isYes(const QString &line)
{
    const QString answer = line.trimmed().toLower();
    return answer == "y"_L1 || answer == "yes"_L1;
}

} // namespace

ReceiveSession::ReceiveSession(const Options &options, TransferEngine &engine, Output &output,
                               QObject *parent)
    : Session(options, engine, output, parent)
    , m_admission(engine, output, !options.control && canAsk(), this)
    , m_notices(engine, output, {}, this)
{
    m_timeoutTimer.setSingleShot(true);
    connect(&m_timeoutTimer, &QTimer::timeout, this, &ReceiveSession::onTimeout);
    m_goodbyeTimer.setSingleShot(true);
    m_settingsTimer.setSingleShot(true);
    connect(&m_settingsTimer, &QTimer::timeout, this, &ReceiveSession::concludeWithoutSettings);
    m_drainTimer.setSingleShot(true);
    m_drainTimer.setInterval(PatienceBeforeFirstSign);
    connect(&m_drainTimer, &QTimer::timeout, this, &ReceiveSession::afterLink);
    connect(&m_goodbyeTimer, &QTimer::timeout, this, [this] { finish(m_results.exitCode()); });
}

void ReceiveSession::start()
{
    connectEngine();
    showRuns();
    if (options().control)
        readInput();
    else if (!options().yes && !canAsk())
        output().warning(tr("Nobody can be asked here: every request will be refused without --yes."));
    engine().setRole(options().role);
    engine().setMode(options().mode);
    waitForPeer();
}

void ReceiveSession::connectEngine()
{
    TransferEngine *source = &engine();
    connect(source, &TransferEngine::pcDiscovered, this, [this](const PCInfo &pc) { output().peer(pc); });
    connect(source, &TransferEngine::pcLost, this,
            [this](const QString &id, quint64 key) { output().peerLost(id, key); });
    connect(source, &TransferEngine::portTaken, this, [this](quint16 port) {
        if (port == TcpPort)
            finish(RunFailed);
    });
    connect(source, &TransferEngine::connectionRequested, this, &ReceiveSession::onConnectionRequested);
    connect(source, &TransferEngine::connected, this, &ReceiveSession::onConnected);
    connect(source, &TransferEngine::disconnected, this, &ReceiveSession::onLinkBroken);
    connect(source, &TransferEngine::connectionFailed, this, &ReceiveSession::onLinkBroken);
    connect(source, &TransferEngine::sessionEndReceived, this, &ReceiveSession::onSessionEndReceived);
    connect(source, &TransferEngine::fileTransferStarted, this, &ReceiveSession::onTransferSign);
    connect(source, &TransferEngine::transferProgressChanged, this, &ReceiveSession::onTransferSign);
    connect(source, &TransferEngine::newTransferStarted, this, &ReceiveSession::onNewTransferStarted);
    connect(source, &TransferEngine::transferReset, this, &ReceiveSession::onTransferReset);
    connect(source, &TransferEngine::runEnded, this, &ReceiveSession::onRunEnded);
    connect(source, &TransferEngine::settingsFinished, this, [this] {
        if (!m_heldReport)
            return;
        takeHeldReport();
        concludeRun(engine().summary());
    });
    connect(source, &TransferEngine::peerCancelled, this, [this] {
        if (m_receiving)
            output().cancelled(Side::Peer);
    });
    connect(source, &TransferEngine::transferFailed, this, &ReceiveSession::onTransferFailed);
}

void ReceiveSession::waitForPeer()
{
    setLink(Link::None);
    engine().startDiscovery();
    if (isFinishing())
        return;
    m_notices.lookingBegins();
    output().code(engine().verifyCode());
    expectTransfer();
}

void ReceiveSession::expectTransfer()
{
    m_receiving = false;
    m_expecting = false;
    if (options().timeout)
        m_timeoutTimer.start(*options().timeout);
}

void ReceiveSession::onConnectionRequested()
{
    const QList<ConnectionQuestion> open = engine().openQuestions();
    if (open.isEmpty())
        return;
    const ConnectionQuestion &question = open.last();
    const bool isTaken = link() == Link::Up && question.ip != connectedPeer().ip;
    if (canAsk() && !options().yes) {
        m_admission.put(question);
        readInput();
        return;
    }
    output().request(question, false);
    if (isTaken)
        m_admission.refuse(question, tr("this PC is receiving from %1.").arg(m_peerName));
    else if (options().yes)
        m_admission.admit(question);
    else
        m_admission.refuse(question, tr("nobody can be asked here. Start with --yes to let every PC in."));
}

bool ReceiveSession::canAsk() const
{
    return options().control || Platform::isTerminal(Platform::StandardStream::Input);
}

void ReceiveSession::onInput(const QString &line)
{
    if (options().control)
        Session::onInput(line);
    else
        m_admission.answer(0, isYes(line));
}

void ReceiveSession::onInputEnded()
{
    const QList<ConnectionQuestion> open = engine().openQuestions();
    for (const ConnectionQuestion &question : open) {
        if (!options().control)
            m_admission.refuse(question, {});
    }
}

void ReceiveSession::onConnected()
{
    m_drainTimer.stop(); // what a link of before still owes does not come any more
    setLink(Link::Up);
    const PCInfo peer = connectedPeer();
    m_peerName = peer.name;
    output().connected(peer);
    concludeWithoutSettings();
    engine().stopDiscovery();
    engine().startReceiving();
    m_expecting = true;
}

void ReceiveSession::onLinkBroken()
{
    onPeerLeft(tr("The link to %1 broke during a transfer.").arg(m_peerName));
}

void ReceiveSession::onSessionEndReceived()
{
    // Goodbye means that everything is through.
    m_partsThen = m_heldReport.has_value();
    if (!m_partsThen)
        onPeerLeft(tr("%1 ended the session during a transfer.").arg(m_peerName));
}

/// A run that is on ends by itself, once what has arrived is on the disk.
void ReceiveSession::onPeerLeft(const QString &complaint)
{
    if (link() != Link::Up)
        return;
    setLink(Link::None);
    m_partsThen = false; // the link that it was about is gone
    const bool isUnderWay = engine().isRunUnderWay();
    if (isUnderWay)
        m_complaint = complaint;
    engine().disconnectFromPeer();
    if (isUnderWay || m_heldReport)
        return;
    if (m_receiving || m_expecting)
        m_drainTimer.start();
    else
        afterLink();
}

void ReceiveSession::afterLink()
{
    m_drainTimer.stop();
    engine().resetForNewConnection();
    output().disconnected();
    if (m_endsThen)
        finish(m_results.exitCode());
    else if (!options().once)
        waitForPeer();
    else
        finish(m_reported ? m_results.exitCode() : RunFailed);
}

void ReceiveSession::onTransferSign()
{
    if (m_drainTimer.isActive())
        m_drainTimer.start();
    else if (link() != Link::Up)
        return;
    m_receiving = true;
    m_timeoutTimer.stop();
}

void ReceiveSession::onNewTransferStarted()
{
    concludeWithoutSettings();
    if (m_reported) {
        finish(m_results.exitCode());
        return;
    }
    engine().resetForNewReceive();
    onTransferSign();
}

void ReceiveSession::onTransferReset()
{
    concludeWithoutSettings();
    if (m_reported) {
        finish(m_results.exitCode());
        return;
    }
    expectTransfer();
    m_expecting = true;
}

void ReceiveSession::onRunEnded(const RunSummary &summary)
{
    if (summary.end == RunEnd::Complete)
        onCompleted(summary);
    else if (summary.end == RunEnd::LinkLost || summary.end == RunEnd::Reset)
        onRunBroken(summary);
    else
        showReport(summary);
    if (summary.end == RunEnd::CancelledThere)
        runEnded(RunFailed);
}

void ReceiveSession::onCompleted(const RunSummary &summary)
{
    m_complaint.clear();
    if (!engine().isApplyingSettings()) {
        concludeRun(summary);
        return;
    }
    m_drainTimer.stop(); // all has come
    m_heldReport = summary;
    m_settingsTimer.start(SettingsTime);
}

void ReceiveSession::onRunBroken(const RunSummary &summary)
{
    const QString complaint = std::exchange(m_complaint, {});
    const bool isWaitedFor = link() == Link::None && !complaint.isEmpty();
    if (summary.total() == 0 && !isWaitedFor)
        return;
    output().error(complaint.isEmpty() ? tr("The transfer from %1 broke off.").arg(m_peerName) : complaint);
    showReport(summary);
    m_results.record(RunFailed);
    m_receiving = false;
    if (summary.end == RunEnd::LinkLost && !engine().hasAcceptedLink()) {
        if (link() == Link::Up)
            engine().disconnectFromPeer();
        setLink(Link::None);
        afterLink();
    } else if (m_endsThen) { // the end of another link's run leaves the one that stands alone
        finish(m_results.exitCode());
    }
}

void ReceiveSession::concludeWithoutSettings()
{
    if (!m_heldReport)
        return;
    output().warning(tr("Some settings are still being applied; the report is without them."));
    m_results.record(SomethingMissing);
    concludeRun(takeHeldReport());
}

RunSummary ReceiveSession::takeHeldReport()
{
    m_settingsTimer.stop();
    return *std::exchange(m_heldReport, std::nullopt);
}

void ReceiveSession::concludeRun(const RunSummary &summary)
{
    showReport(summary);
    m_results.record(exitCodeFor(summary));
    expectTransfer();
    m_reported = options().once;
    if (std::exchange(m_partsThen, false) && link() == Link::Up) {
        setLink(Link::None);
        engine().disconnectFromPeer();
    }
    if (m_endsThen) {
        finish(m_results.exitCode());
    } else if (m_drainTimer.isActive() || link() == Link::None) {
        afterLink();
    } else if (m_reported) {
        m_timeoutTimer.stop();
        m_goodbyeTimer.start(GoodbyeTime);
    }
}

void ReceiveSession::onTransferFailed(const QString &reason)
{
    output().error(reason);
    runEnded(RunFailed);
}

void ReceiveSession::runEnded(ExitCode exitCode)
{
    m_results.record(exitCode);
    if (options().once || m_endsThen)
        finish(exitCode);
    else
        expectTransfer();
}

bool ReceiveSession::obey(const ControlCommand &command)
{
    switch (command.kind) {
    case ControlCommand::Yes:
    case ControlCommand::No:
        m_admission.answer(command.question, command.kind == ControlCommand::Yes);
        return true;
    case ControlCommand::Cancel:
        if (m_receiving && !m_heldReport) {
            cancelHere();
            runEnded(Cancelled);
            m_complaint.clear();
            if (link() == Link::None && !options().once && !m_endsThen) // nothing else leads on from there
                afterLink();
        }
        return true;
    case ControlCommand::End:
        m_endsThen = m_receiving || m_heldReport.has_value();
        if (!m_endsThen)
            finish(m_results.exitCode());
        return true;
    case ControlCommand::Again:
        return false;
    default:
        return Session::obey(command);
    }
}

void ReceiveSession::cancelHere()
{
    output().cancelled(Side::Here);
    engine().cancelTransfer();
}

void ReceiveSession::onTimeout()
{
    output().error(tr("Nothing began to arrive within %1 seconds.").arg(options().timeout->count()));
    finish(TimedOut);
}

void ReceiveSession::onInterrupt()
{
    concludeWithoutSettings();
    if (m_reported) {
        finish(m_results.exitCode());
        return;
    }
    if ((link() == Link::Up && m_receiving) || engine().isRunUnderWay())
        cancelHere();
    finish(Cancelled);
}

} // namespace Zandrove::Cli
