#include "cli/Session.h"

#include "core/engine/TransferEngine.h"
#include "platform/Terminal.h"
#include "support/ReportDocument.h"
#include "support/RunTexts.h"
#include "support/Utilities.h"

#include <QHostAddress>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace Zandrove::Cli {

namespace {

constexpr auto ProgressInterval = 200ms;

// How long the peer may take to hang up: after a completed run, whose last bytes may still be leaving over a
// slow link, and otherwise.
constexpr std::chrono::milliseconds FarewellTimeCompleted = 60s;
constexpr std::chrono::milliseconds FarewellTime = 2s;
// And where it may still be installing applications or applying settings, and can't
// answer before it is through.
constexpr std::chrono::milliseconds FarewellTimeInstalling = 1h;

// How long the last frames of a link may take to leave when this side hangs up.
constexpr auto HangUpTime = 2500ms;

} // namespace

Session::Session(const Options &options, TransferEngine &engine, Output &output, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_engine(engine)
    , m_output(output)
    , m_farewellTime(FarewellTimeCompleted)
{
    connect(&m_engine, &TransferEngine::warning, this,
            [this](const QString &message) { m_output.warning(message); });
}

Session::~Session() = default;

PCInfo Session::connectedPeer() const
{
    PCInfo peer = m_engine.connectedPC();
    bool isIPv4 = false;
    const quint32 address = QHostAddress(peer.ip).toIPv4Address(&isIPv4);
    if (isIPv4)
        peer.ip = QHostAddress(address).toString(); // "::ffff:10.0.0.1" is how a listener sees it
    return peer;
}

void Session::refuseLastRequest()
{
    const QList<ConnectionQuestion> open = m_engine.openQuestions();
    if (!open.isEmpty())
        m_engine.rejectConnection(open.last().number);
}

void Session::showRuns()
{
    connect(&m_engine, &TransferEngine::transferProgressChanged, this, &Session::showProgress);
    connect(&m_engine, &TransferEngine::fileTransferStarted, this,
            [this](const QString &name) { m_output.file(name, FileStatus::Started, {}); });
    connect(&m_engine, &TransferEngine::itemSettled, this, &Session::showOutcome);
    connect(&m_engine, &TransferEngine::transferPaused, this, [this] { m_output.paused(Side::Here); });
    connect(&m_engine, &TransferEngine::pausedByPeer, this, [this] { m_output.paused(Side::Peer); });
    connect(&m_engine, &TransferEngine::transferResumed, this, [this] { m_output.resumed(Side::Here); });
    connect(&m_engine, &TransferEngine::resumedByPeer, this, [this] { m_output.resumed(Side::Peer); });
    connect(&m_engine, &TransferEngine::installing, this, &Session::showInstalling);
    connect(&m_engine, &TransferEngine::spaceShort, this,
            [this](qint64 needed, qint64 available, const QString &volume) {
                m_output.warning(
                    tr("%1 are on their way, but only %2 are free on %3. Not everything will fit.")
                        .arg(formatSize(needed), formatSize(available), volume));
            });
    showLink();
}

/// One by one as they become known. What the end of the run settles, its report tells.
void Session::showOutcome(const ItemResult &item)
{
    if (item.kind == ItemKind::File && !m_engine.isRunUnderWay())
        return;
    const QString name = rowName(item.kind, item.path);
    if (item.outcome == ItemOutcome::Arrived)
        m_output.file(name, FileStatus::Completed, {});
    else if (item.outcome == ItemOutcome::Failed)
        m_output.file(name, FileStatus::Failed, item.reason);
    else if (item.outcome == ItemOutcome::WasThere || item.outcome == ItemOutcome::WasDifferent)
        m_output.file(name, FileStatus::WasThere, item.reason);
}

void Session::showLink()
{
    connect(&m_engine, &TransferEngine::linkSilent, this, [this](int seconds) {
        if (!std::exchange(m_linkSilent, true))
            m_output.warning(
                tr("No answer from %1 for %2 s").arg(connectedPeer().name, QString::number(seconds)));
    });
    connect(&m_engine, &TransferEngine::linkAnswers, this, [this] {
        if (std::exchange(m_linkSilent, false))
            m_output.warning(tr("%1 answers again").arg(connectedPeer().name));
    });
    connect(&m_engine, &TransferEngine::connected, this, [this] { m_linkSilent = false; });
}

void Session::showInstalling(const QString &app, int percent)
{
    const bool isNew = m_installing != app;
    if (!isNew && !progressIsDue())
        return;
    m_installing = app;
    m_output.installing(m_options.role == NewPC ? getComputerName() : connectedPeer().name, app, percent);
}

void Session::showReport(const RunSummary &summary)
{
    showLastProgress();
    m_output.report(summary);
    m_installing.clear();
    keepReport(summary);
    // A further run may stand behind what an earlier one has left the other PC to do.
    if (summary.apps.arrived > 0 || summary.settings.arrived > 0)
        m_farewellTime = FarewellTimeInstalling;
}

void Session::showRevision(const RunSummary &summary)
{
    m_output.error(
        summary.end == RunEnd::LinkLost
            ? tr("%1 was lost before it said that everything is installed.").arg(summary.peerName)
            : tr("%1 called the transfer off before everything was installed.").arg(summary.peerName));
    showReport(summary);
}

void Session::keepReport(const RunSummary &summary)
{
    if (m_options.report.isEmpty() || (summary.total() == 0 && summary.end != RunEnd::Complete))
        return;
    const QString problem = saveReport(summary, m_options.report);
    if (problem.isEmpty())
        return;
    m_output.error(problem);
    m_reportLost = true;
}

void Session::showProgress(const TransferProgress &progress)
{
    m_heldProgress = progress;
    m_progressHeld = true;
    if (progressIsDue())
        showLastProgress();
}

bool Session::progressIsDue()
{
    if (m_sinceProgress.isValid() && !m_sinceProgress.hasExpired(ProgressInterval.count()))
        return false;
    m_sinceProgress.start();
    return true;
}

void Session::showLastProgress()
{
    if (m_progressHeld)
        m_output.progress(m_heldProgress);
    m_progressHeld = false;
}

void Session::readInput()
{
    if (m_input)
        return;
    m_input = new Platform::InputLines(this);
    connect(m_input, &Platform::InputLines::lineRead, this, &Session::onInput);
    connect(m_input, &Platform::InputLines::ended, this, &Session::onInputEnded);
}

void Session::onInput(const QString &line)
{
    if (m_finishing || line.trimmed().isEmpty())
        return;
    const std::optional<ControlCommand> command = parseControlCommand(line);
    if (!command || !obey(*command))
        m_output.warning(tr("Unknown command: %1").arg(line));
}

void Session::onInputEnded() {}

bool Session::obey(const ControlCommand &command)
{
    switch (command.kind) {
    case ControlCommand::Pause:
        m_engine.pauseTransfer();
        return true;
    case ControlCommand::Resume:
        m_engine.resumeTransfer();
        return true;
    default:
        return false;
    }
}

void Session::interrupt()
{
    if (!m_finishing) {
        onInterrupt();
        return;
    }
    m_exitCode = Cancelled;
    conclude();
}

void Session::finish(ExitCode exitCode)
{
    if (m_finishing)
        return;
    m_finishing = true;
    m_exitCode = m_reportLost && exitCode == EverythingMoved ? SomethingMissing : exitCode;
    QObject::disconnect(&m_engine, nullptr, this, nullptr);
    m_engine.stopDiscovery();
    if (m_link == Link::Up) {
        const bool completed = exitCode == EverythingMoved || exitCode == SomethingMissing;
        connect(&m_engine, &TransferEngine::runRevised, this, [this](const RunSummary &summary) {
            showRevision(summary);
            m_exitCode = exitCodeFor(summary);
        });
        connect(&m_engine, &TransferEngine::disconnected, this, &Session::conclude);
        connect(&m_engine, &TransferEngine::connectionFailed, this, &Session::conclude);
        // A peer that ends the session in the same moment waits for this side as well.
        connect(&m_engine, &TransferEngine::sessionEndReceived, this, &Session::partNow);
        m_engine.sendSessionEnd();
        QTimer::singleShot(completed ? m_farewellTime : FarewellTime, this, &Session::onNoFarewell);
    } else if (m_link == Link::Pending) {
        hangUp();
    } else {
        conclude();
    }
}

void Session::onNoFarewell()
{
    if (m_concluded)
        return;
    if (m_exitCode == EverythingMoved || m_exitCode == SomethingMissing) {
        m_output.error(tr("The other PC did not end the session: not everything may have arrived."));
        m_exitCode = RunFailed;
    }
    partNow();
}

void Session::partNow()
{
    QObject::disconnect(&m_engine, nullptr, this, nullptr);
    hangUp();
}

void Session::hangUp()
{
    // The engine says it once by itself, and once more when the socket's last byte has left.
    constexpr int EndsOfLink = 2;
    connect(&m_engine, &TransferEngine::disconnected, this, [this, ends = 0]() mutable {
        if (++ends == EndsOfLink)
            conclude();
    });
    m_engine.disconnectFromPeer();
    QTimer::singleShot(HangUpTime, this, &Session::conclude);
}

void Session::conclude()
{
    if (m_concluded)
        return;
    m_concluded = true;
    Q_EMIT finished(m_exitCode);
}

} // namespace Zandrove::Cli
