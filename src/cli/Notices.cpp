#include "cli/Notices.h"

#include "cli/Output.h"
#include "cli/PeerMatch.h"
#include "core/engine/TransferEngine.h"
#include "support/PeerChoice.h"

#include <chrono>

using namespace std::chrono_literals;

namespace Zandrove::Cli {

namespace {

constexpr auto TimeToBeFound = 20s;

// A New PC that lets everybody in answers at once.
constexpr auto TimeToAnswer = 1s;

constexpr qsizetype MostOfSameRole = 8;

} // namespace

Notices::Notices(TransferEngine &engine, Output &output, const QString &target, QObject *parent)
    : QObject(parent)
    , m_engine(engine)
    , m_output(output)
    , m_target(target)
{
    m_nobodyFound.setSingleShot(true);
    m_nobodyFound.setInterval(TimeToBeFound);
    m_waiting.setSingleShot(true);
    m_waiting.setInterval(TimeToAnswer);
    connect(&m_nobodyFound, &QTimer::timeout, this, &Notices::onNobodyFound);
    connect(&m_waiting, &QTimer::timeout, this, [this] { m_output.waiting(m_waitingFor); });
    connect(&m_engine, &TransferEngine::sameRolePeer, this, &Notices::onSameRolePeer);
    connect(&m_engine, &TransferEngine::portTaken, this, &Notices::onPortTaken);
    connect(&m_engine, &TransferEngine::waitingForAnswer, this, [this](const QString &name) {
        m_nobodyFound.stop();
        m_waitingFor = name;
        m_waiting.start();
    });
    connect(&m_engine, &TransferEngine::connectionFailed, &m_waiting, &QTimer::stop);
    connect(&m_engine, &TransferEngine::connectionRequested, &m_nobodyFound, &QTimer::stop);
    connect(&m_engine, &TransferEngine::connected, this, [this] {
        m_waiting.stop();
        m_nobodyFound.stop();
    });
}

void Notices::lookingBegins()
{
    m_nobodyFound.start();
}

void Notices::onSameRolePeer(const QString &name)
{
    if (m_sameRole.contains(name) || m_sameRole.size() >= MostOfSameRole)
        return;
    m_sameRole.insert(name);
    m_output.warning(
        m_engine.role() == OldPC
            ? tr("%1 is here too, but also as Old PC: choose New PC on one of the two").arg(name)
            : tr("%1 is here too, but also as New PC: choose Old PC on one of the two").arg(name));
}

void Notices::onPortTaken(quint16 port, const QString &program)
{
    const QString number = QString::number(port);
    const QString holder = program.isEmpty() ? tr("another program") : program;
    if (port == UdpPort)
        m_output.warning(
            tr("Port %1 is taken by %2: this PC hears no other one. End that program, and begin anew.")
                .arg(number, holder));
    else if (m_engine.role() == NewPC)
        m_output.error(
            tr("Port %1 is taken by %2: no other PC can reach this one. End that program, and begin anew.")
                .arg(number, holder));
    else
        m_output.warning(
            tr("Port %1 is taken by %2: no other PC can ask this one, which can still ask others.")
                .arg(number, holder));
}

void Notices::onNobodyFound()
{
    const QList<PCInfo> peers = m_engine.discoveredPCs();
    if (m_target.isEmpty() ? !peers.isEmpty() : !findPeers(peers, m_target).isEmpty())
        return;
    if (!peers.isEmpty()) {
        m_output.warning(
            tr("%1 was not found for 20 seconds. In reach are: %2.")
                .arg(m_target, describedPeers(peers.first(std::min<qsizetype>(peers.size(), 8)))));
        return;
    }
    const QString role = m_engine.role() == OldPC ? tr("New PC") : tr("Old PC");
    m_output.warning(
        tr("Nobody was found for 20 seconds. What to look at, the likeliest first: Zandrove runs on the "
           "other PC, "
           "as %1; both PCs are in the same network, or joined by a cable; neither of them uses a VPN; their "
           "firewalls let TCP port %2 and UDP port %3 in. zandrove-cli diagnose looks for the cause.")
            .arg(role, QString::number(TcpPort), QString::number(UdpPort)));
}

} // namespace Zandrove::Cli
