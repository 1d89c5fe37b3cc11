#include "diagnosis/DiagnosisRun.h"

#include "diagnosis/DialTest.h"
#include "diagnosis/Ear.h"
#include "diagnosis/Findings.h"
#include "diagnosis/Log.h"

#include <QCoreApplication>
#include <QTcpServer>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

using Platform::PortHolder;
using Platform::Transport;

/// How long a datagram may take to come back to the PC that has sent it.
constexpr auto EchoTime = 300ms;

bool isInterrupted()
{
    return QThread::currentThread()->isInterruptionRequested();
}

QList<AdapterFacts> readAdapters()
{
    const QStringList withNeighbours = Platform::adaptersWithNeighbours();
    QList<AdapterFacts> result;
    const QList<NetworkAdapter> adapters = systemNetworkAdapters();
    for (const NetworkAdapter &adapter : adapters) {
        if (!adapter.up || adapter.loopback)
            continue;
        AdapterFacts facts;
        facts.adapter = adapter;
        facts.kind = Platform::adapterKind(adapter.systemName);
        facts.hasNeighbours = withNeighbours.contains(adapter.systemName);
        result.append(facts);
    }
    return result;
}

bool isOurs(const PortHolder &holder)
{
    return holder.processId == QCoreApplication::applicationPid() ||
           holder.program.startsWith("zandrove"_L1, Qt::CaseInsensitive);
}

/// `canBeHad`: this PC's copy could listen on it now.
PortFacts portFacts(Transport transport, quint16 port, const QList<PortHolder> &holders, bool canBeHad)
{
    PortFacts facts{.transport = transport, .port = port, .state = PortFacts::Free, .program = {}};
    if (std::any_of(holders.begin(), holders.end(), isOurs))
        facts.state = PortFacts::Ours;
    else if (!canBeHad)
        facts.state = PortFacts::Taken;
    if (!holders.isEmpty())
        facts.program = holders.constFirst().program;
    return facts;
}

PortFacts tcpFacts()
{
    const QList<PortHolder> holders = Platform::portHolders(Transport::Tcp, TcpPort);
    QTcpServer server;
    return portFacts(Transport::Tcp, TcpPort, holders, server.listen(QHostAddress::Any, TcpPort));
}

Platform::FirewallQuestion firewallQuestion(const PcFacts &pc)
{
    Platform::FirewallQuestion question{TcpPort, UdpPort, {}, QCoreApplication::applicationFilePath()};
    const QList<AdapterFacts> usable = pc.usableAdapters();
    for (const AdapterFacts &facts : usable)
        question.adapters.append(facts.adapter.systemName);
    return question;
}

void noteEchoes(PcFacts &pc, const Ear &ear)
{
    for (AdapterFacts &facts : pc.adapters) {
        const QList<AdapterAddress> addresses = facts.addresses();
        facts.heardBack = std::any_of(addresses.begin(), addresses.end(), [&](const AdapterAddress &entry) {
            return ear.hasHeardProbe(entry.ip);
        });
    }
}

/// Gives each PC that was heard the best outcome of its addresses.
void dialHeard(PeerFacts &peers, const QList<QHostAddress> &own)
{
    QStringList targets;
    for (const HeardPc &other : peers.heard)
        targets += other.addresses;
    if (!peers.target.isEmpty())
        targets.append(peers.target);
    const QList<DialFacts> outcomes = dialAll(targets, own);
    qsizetype next = 0;
    for (HeardPc &other : peers.heard) {
        other.dial = outcomes.at(next);
        for (qsizetype i = 0; i < other.addresses.size(); ++i, ++next) {
            if (outcomes.at(next).outcome == DialFacts::Answered)
                other.dial = outcomes.at(next);
        }
    }
    if (!peers.target.isEmpty())
        peers.dial = outcomes.constLast();
}

QList<QHostAddress> ownAddresses(const PcFacts &pc)
{
    QList<QHostAddress> own;
    for (const AdapterFacts &facts : pc.adapters) {
        for (const AdapterAddress &entry : facts.adapter.addresses)
            own.append(entry.ip);
    }
    return own;
}

} // namespace

void runDiagnosis(const DiagnosisOptions &options, const std::function<void(const QList<Finding> &)> &tell)
{
    PcFacts pc;
    pc.adapters = readAdapters();
    pc.routes = Platform::networkRoutes();
    const QList<PortHolder> udpHolders = Platform::portHolders(Transport::Udp, UdpPort);
    Ear ear;
    pc.ports = {tcpFacts(), portFacts(Transport::Udp, UdpPort, udpHolders, ear.isOpen())};
    ear.probe(pc.adapters);
    tell(adapterFindings(pc));

    pc.firewalls = Platform::readFirewalls(firewallQuestion(pc));
    pc.publicNetworks = Platform::publicNetworks();
    tell(portFindings(pc));

    const bool canFindOthers = !pc.usableAdapters().isEmpty();
    ear.listen(canFindOthers ? std::max<std::chrono::milliseconds>(options.hearing, EchoTime) : 0ms);
    noteEchoes(pc, ear);
    PeerFacts peers{.role = options.role,
                    .seconds = int(options.hearing.count()),
                    .heard = ear.heard(),
                    .target = options.target,
                    .dial = {}};
    qCDebug(logDiagnosis) << "Heard:" << peers.heard.size() << "Target:" << peers.target;
    if (canFindOthers && !isInterrupted())
        dialHeard(peers, ownAddresses(pc));
    tell(peerFindings(pc, peers));
}

} // namespace Zandrove
