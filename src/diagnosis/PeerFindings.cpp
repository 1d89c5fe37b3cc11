#include "diagnosis/Findings.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

using Platform::Transport;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Diagnosis)
};

QString roleName(int role)
{
    return role == NewPC ? Text::tr("New PC") : Text::tr("Old PC");
}

/// Everything known while one PC is judged.
struct Scene
{
    const PcFacts &pc;
    const PeerFacts &peers;
};

QString addressOf(const HeardPc &other)
{
    return other.dial.address.isEmpty() ? other.addresses.value(0) : other.dial.address;
}

/// What to do where a PC does not take a connection.
QString dialAdvice(const Scene &scene, const DialFacts &dial, const QString &name)
{
    const QString vpn = vpnThatTakes(scene.pc, QHostAddress(dial.address).toIPv4Address());
    if (!vpn.isEmpty())
        return Text::tr("What is meant for it leaves by the VPN %1: disconnect that first.").arg(vpn);
    if (dial.outcome == DialFacts::Refused)
        return Text::tr("Run this diagnosis on %1: its port may be taken there, or its firewall turns "
                        "connections away.")
            .arg(name);
    return Text::tr("Let Zandrove through the firewall of %1: TCP port %2.")
        .arg(name, QString::number(TcpPort));
}

Finding ofUnreachable(const Scene &scene, const HeardPc &other)
{
    const QString address = addressOf(other);
    Finding finding{u"peer"_s, address, Severity::Problem, {}, dialAdvice(scene, other.dial, other.name), {}};
    if (other.dial.outcome == DialFacts::Refused)
        finding.sentence = Text::tr("%1 (%2) is heard as %3, but refuses connections on TCP port %4.")
                               .arg(other.name, address, roleName(other.role), QString::number(TcpPort));
    else if (other.dial.outcome == DialFacts::Failed)
        finding.sentence = Text::tr("%1 (%2) is heard as %3, but can't be connected to: %4.")
                               .arg(other.name, address, roleName(other.role), other.dial.error);
    else
        finding.sentence = Text::tr("%1 (%2) is heard as %3, but does not answer on TCP port %4.")
                               .arg(other.name, address, roleName(other.role), QString::number(TcpPort));
    return finding;
}

Finding ofSameRole(const HeardPc &other, bool someoneElseIsThere)
{
    const int opposite = other.role == NewPC ? OldPC : NewPC;
    return {u"sameRole"_s,
            addressOf(other),
            someoneElseIsThere ? Severity::Hint : Severity::Problem,
            Text::tr("%1 is here too, but also as %2.").arg(other.name, roleName(other.role)),
            Text::tr("Choose %1 on one of the two.").arg(roleName(opposite)),
            {}};
}

QList<Finding> ofHeard(const Scene &scene)
{
    const QList<HeardPc> &heard = scene.peers.heard;
    const int role = scene.peers.role;
    const bool anyOther =
        std::any_of(heard.begin(), heard.end(), [role](const HeardPc &other) { return other.role != role; });
    QList<Finding> findings;
    for (const HeardPc &other : heard) {
        if (other.role == role)
            findings.append(ofSameRole(other, anyOther));
        if (other.dial.outcome != DialFacts::Answered && other.dial.outcome != DialFacts::NotTried)
            findings.append(ofUnreachable(scene, other));
        else if (other.role != role)
            findings.append({u"peer"_s,
                             addressOf(other),
                             Severity::Ok,
                             Text::tr("%1 (%2) is heard as %3, and answers.")
                                 .arg(other.name, addressOf(other), roleName(other.role)),
                             {},
                             {}});
    }
    return findings;
}

bool isHeard(const PeerFacts &peers, const QString &address)
{
    return std::any_of(peers.heard.begin(), peers.heard.end(),
                       [&](const HeardPc &other) { return other.addresses.contains(address); });
}

Finding ofTarget(const Scene &scene)
{
    const PeerFacts &peers = scene.peers;
    Finding finding{u"target"_s, peers.target, Severity::Problem, {}, {}, {}};
    const QString udpPort = QString::number(UdpPort);
    const QString tcpPort = QString::number(TcpPort);
    switch (peers.dial.outcome) {
    case DialFacts::UnknownName:
        finding.sentence = Text::tr("Nobody here knows a PC by the name %1.").arg(peers.target);
        finding.advice = Text::tr("Give its address instead; its page of connections shows it.");
        break;
    case DialFacts::OwnAddress:
        finding.sentence = Text::tr("%1 is this PC itself.").arg(peers.target);
        finding.advice = Text::tr("Give the address of the other PC.");
        break;
    case DialFacts::Answered:
        finding.sentence = Text::tr("%1 answers on TCP port %2, but is not heard on UDP port %3.")
                               .arg(peers.target, tcpPort, udpPort);
        finding.advice = Text::tr("Open the page of connections there, and UDP port %1 in the firewalls of "
                                  "both PCs; or connect by the address.")
                             .arg(udpPort);
        break;
    case DialFacts::Refused:
        finding.sentence =
            Text::tr("%1 is there, but refuses connections on TCP port %2.").arg(peers.target, tcpPort);
        finding.advice = Text::tr("Open Zandrove there, up to its page of connections.");
        break;
    case DialFacts::Failed:
        finding.sentence = Text::tr("%1 can't be connected to: %2.").arg(peers.target, peers.dial.error);
        finding.advice = Text::tr("See whether the address is right, and both PCs are in the same network.");
        break;
    case DialFacts::Silent:
    case DialFacts::NotTried:
        finding.sentence =
            Text::tr("%1 does not answer on TCP port %2, and is not heard.").arg(peers.target, tcpPort);
        finding.advice = Text::tr("See whether the address is right, that PC on, and its firewall open for "
                                  "Zandrove.");
        break;
    }
    const QString vpn = vpnThatTakes(scene.pc, QHostAddress(peers.dial.address).toIPv4Address());
    if (!vpn.isEmpty() && peers.dial.outcome == DialFacts::Silent)
        finding.advice = dialAdvice(scene, peers.dial, peers.target);
    return finding;
}

/// The adapters whose broadcasts have left, and which this PC itself has not heard.
QList<Finding> ofDeafness(const PcFacts &pc)
{
    QStringList deaf;
    const QList<AdapterFacts> usable = pc.usableAdapters();
    for (const AdapterFacts &facts : usable) {
        if (facts.broadcast == AdapterFacts::Left && !facts.heardBack)
            deaf.append(facts.adapter.name);
    }
    if (deaf.isEmpty() || !pc.canHear() || pc.isClosed(Transport::Udp))
        return {};
    return {{u"deaf"_s,
             deaf.join(", "_L1),
             Severity::Problem,
             Text::tr("This PC doesn't hear its own broadcasts on %1.").arg(deaf.join(", "_L1)),
             Text::tr("Look for a firewall or security program on this PC that keeps out UDP port %1.")
                 .arg(UdpPort),
             {}}};
}

/// Adapters beside others on which nobody is to be seen.
QList<Finding> ofAdaptersToNowhere(const Scene &scene)
{
    QList<Finding> findings;
    const QList<AdapterFacts> usable = scene.pc.usableAdapters();
    for (const AdapterFacts &facts : usable) {
        const bool hasRouter = std::any_of(
            scene.pc.routes.begin(), scene.pc.routes.end(), [&](const Platform::NetworkRoute &route) {
                return route.adapter == facts.adapter.systemName && route.prefixLength == 0;
            });
        const QList<AdapterAddress> own = facts.addresses();
        const bool hasPeer =
            std::any_of(scene.peers.heard.begin(), scene.peers.heard.end(), [&](const HeardPc &other) {
                return std::any_of(own.begin(), own.end(), [&](const AdapterAddress &entry) {
                    return isInSubnet(QHostAddress(addressOf(other)).toIPv4Address(),
                                      entry.ip.toIPv4Address(), entry.prefixLength);
                });
            });
        if (usable.size() < 2 || hasRouter || hasPeer || facts.hasNeighbours)
            continue;
        findings.append({u"nowhere"_s,
                         facts.adapter.name,
                         Severity::Hint,
                         Text::tr("Nobody has answered on %1, and it has no router.").arg(facts.adapter.name),
                         Text::tr("If the other PC should be there, see whether its end of the cable, or "
                                  "its network, is on."),
                         {}});
    }
    return findings;
}

/// That nobody was heard, unless something that was found before explains it.
QList<Finding> ofSilence(const Scene &scene, bool isDeaf)
{
    const bool isExplained = isDeaf || !scene.pc.canHear() || scene.pc.isClosed(Transport::Udp) ||
                             scene.pc.usableAdapters().isEmpty();
    if (isExplained || !scene.peers.heard.isEmpty() || !scene.peers.target.isEmpty())
        return {};
    return {
        {u"nobody"_s,
         {},
         Severity::Problem,
         Text::tr("No other PC was heard within %1 s.").arg(scene.peers.seconds),
         Text::tr("Open Zandrove on the other PC, up to its page of connections, and put both PCs into the "
                  "same network."),
         {}}};
}

} // namespace

QList<Finding> peerFindings(const PcFacts &pc, const PeerFacts &peers)
{
    const Scene scene{pc, peers};
    QList<Finding> findings = ofHeard(scene);
    if (!peers.target.isEmpty() && !isHeard(peers, peers.dial.address) && !pc.usableAdapters().isEmpty())
        findings.append(ofTarget(scene));
    const QList<Finding> deafness = peers.heard.isEmpty() ? ofDeafness(pc) : QList<Finding>();
    findings.append(deafness);
    findings.append(ofSilence(scene, !deafness.isEmpty()));
    findings.append(ofAdaptersToNowhere(scene));
    return findings;
}

} // namespace Zandrove
