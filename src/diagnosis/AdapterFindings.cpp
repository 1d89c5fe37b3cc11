#include "diagnosis/Findings.h"

#include "peer/AddressRules.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

using Platform::AdapterKind;
using Platform::NetworkRoute;

constexpr int WholeAddress = 32;
/// A route to fewer addresses than these bits leave is one to single machines.
constexpr int SmallestSwallowed = 30;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Diagnosis)
};

QString kindName(AdapterKind kind)
{
    switch (kind) {
    case AdapterKind::Wired:
        return Text::tr("wired");
    case AdapterKind::Wireless:
        return Text::tr("Wi-Fi");
    case AdapterKind::Virtual:
        return Text::tr("virtual");
    case AdapterKind::Vpn:
        return Text::tr("VPN");
    case AdapterKind::Unknown:
    case AdapterKind::Part:
        break;
    }
    return {};
}

/// The adapter as a user knows it, with its kind where that is known.
QString label(const AdapterFacts &facts)
{
    const QString kind = kindName(facts.kind);
    return kind.isEmpty() ? facts.adapter.name : u"%1 (%2)"_s.arg(facts.adapter.name, kind);
}

QString addressList(const AdapterFacts &facts)
{
    QStringList texts;
    const QList<AdapterAddress> addresses = facts.addresses();
    for (const AdapterAddress &entry : addresses)
        texts.append(entry.ip.toString());
    return texts.join(", "_L1);
}

Finding about(const AdapterFacts &facts, const QString &id, Severity severity, const QString &sentence,
              const QString &advice = {})
{
    return {id, facts.adapter.name, severity, sentence, advice, {}};
}

/// `isAlone`: no adapter can be used but this one, if any.
Finding withAddress(const AdapterFacts &facts, bool isAlone)
{
    const QString sentence = Text::tr("%1 has the address %2.").arg(label(facts), addressList(facts));
    if (!facts.adapter.running && facts.kind != AdapterKind::Vpn)
        return about(facts, u"adapter"_s, Severity::Hint,
                     Text::tr("%1 has the address %2, but is connected to nothing.")
                         .arg(label(facts), addressList(facts)),
                     Text::tr("Plug in its cable, or join a network with it."));
    if (facts.broadcast == AdapterFacts::Failed)
        return about(facts, u"adapter"_s, isAlone ? Severity::Problem : Severity::Hint,
                     Text::tr("%1 has the address %2, but no broadcast can leave by it: %3.")
                         .arg(label(facts), addressList(facts), facts.broadcastError),
                     Text::tr("Look for a firewall or security program on this PC that keeps Zandrove from "
                              "sending."));
    if (facts.broadcast == AdapterFacts::Left)
        return about(facts, u"adapter"_s, Severity::Ok,
                     Text::tr("%1 has the address %2, and broadcasts leave by it.")
                         .arg(label(facts), addressList(facts)));
    return about(facts, u"adapter"_s, Severity::Ok, sentence);
}

/// One that has no address, where that is worth a word.
QList<Finding> withoutAddress(const AdapterFacts &facts, bool anyUsable)
{
    const bool isWaiting = facts.adapter.running && facts.kind != AdapterKind::Vpn;
    if (isWaiting && (!anyUsable || facts.kind != AdapterKind::Virtual))
        return {about(facts, u"address"_s, anyUsable ? Severity::Hint : Severity::Problem,
                      Text::tr("%1 is connected, but has no address yet.").arg(label(facts)),
                      Text::tr("Wait a minute. If none comes, see whether the router is on; over a direct "
                               "cable, set this connection to link-local addresses."))};
    if (!facts.adapter.running && facts.kind != AdapterKind::Virtual && facts.kind != AdapterKind::Vpn)
        return {about(facts, u"adapter"_s, Severity::Ok,
                      Text::tr("%1 is connected to nothing.").arg(label(facts)))};
    return {};
}

QList<Finding> linkLocalFindings(const QList<AdapterFacts> &usable)
{
    QStringList own;
    for (const AdapterFacts &facts : usable) {
        const QList<AdapterAddress> addresses = facts.addresses();
        for (const AdapterAddress &entry : addresses)
            own.append(entry.ip.toString());
    }
    const bool onlyLinkLocal =
        std::all_of(own.begin(), own.end(), [](const QString &ip) { return ip.startsWith(LinkLocalPrefix); });
    if (own.isEmpty() || !onlyLinkLocal)
        return {};
    return {{u"linkLocal"_s,
             own.constFirst(),
             Severity::Hint,
             Text::tr("This PC has only an address that it gave itself, %1.").arg(own.constFirst()),
             Text::tr("Over a direct cable that is as it should be: choose Cable Mode on both PCs. In a "
                      "network, see whether the router is on."),
             {}}};
}

/// The adapter that a route belongs to, where it is a VPN.
const AdapterFacts *vpnOf(const PcFacts &pc, const NetworkRoute &route)
{
    const auto found = std::find_if(pc.adapters.begin(), pc.adapters.end(), [&](const AdapterFacts &facts) {
        return facts.adapter.systemName == route.adapter && facts.kind == AdapterKind::Vpn;
    });
    return found == pc.adapters.end() ? nullptr : &*found;
}

/// Whether a route takes packets for the subnet `entry` of `facts` from it.
bool swallows(const PcFacts &pc, const NetworkRoute &route, const AdapterFacts &facts,
              const AdapterAddress &entry)
{
    const quint32 own = entry.ip.toIPv4Address();
    if (entry.prefixLength < 0 || !isInSubnet(route.network, own, entry.prefixLength))
        return false;
    if (route.prefixLength != entry.prefixLength)
        return route.prefixLength > entry.prefixLength && route.prefixLength <= SmallestSwallowed;
    return std::all_of(pc.routes.begin(), pc.routes.end(), [&](const NetworkRoute &other) {
        return other.adapter != facts.adapter.systemName || other.network != route.network ||
               other.prefixLength != route.prefixLength || route.metric < other.metric;
    });
}

QString subnetText(const AdapterAddress &entry)
{
    const quint32 mask = entry.prefixLength > 0 ? ~quint32(0) << (WholeAddress - entry.prefixLength) : 0;
    return u"%1/%2"_s.arg(QHostAddress(entry.ip.toIPv4Address() & mask).toString(),
                          QString::number(entry.prefixLength));
}

QList<Finding> swallowedNetworks(const PcFacts &pc)
{
    QList<Finding> findings;
    const QList<AdapterFacts> usable = pc.usableAdapters();
    for (const AdapterFacts &facts : usable) {
        const QList<AdapterAddress> addresses = facts.addresses();
        for (const AdapterAddress &entry : addresses) {
            const auto taker =
                std::find_if(pc.routes.begin(), pc.routes.end(), [&](const NetworkRoute &route) {
                    return vpnOf(pc, route) && swallows(pc, route, facts, entry);
                });
            if (taker == pc.routes.end())
                continue;
            const QString vpn = vpnOf(pc, *taker)->adapter.name;
            findings.append({u"vpn"_s,
                             vpn,
                             Severity::Problem,
                             Text::tr("The VPN %1 takes what is meant for the network %2 of %3.")
                                 .arg(vpn, subnetText(entry), facts.adapter.name),
                             Text::tr("Disconnect the VPN until everything has moved."),
                             {}});
        }
    }
    return findings;
}

QList<Finding> defaultByVpn(const PcFacts &pc)
{
    for (const NetworkRoute &route : pc.routes) {
        const AdapterFacts *const vpn = vpnOf(pc, route);
        if (vpn && route.prefixLength <= 1) // some halve the default route, to be preferred to it
            return {{u"vpn"_s,
                     vpn->adapter.name,
                     Severity::Hint,
                     Text::tr("The VPN %1 takes what is not for a local network.").arg(vpn->adapter.name),
                     Text::tr("Disconnect it if the PCs don't find each other: many a VPN keeps its PC "
                              "away from the local network."),
                     {}}};
    }
    return {};
}

} // namespace

QList<Finding> adapterFindings(const PcFacts &pc)
{
    QList<Finding> findings;
    const QList<AdapterFacts> usable = pc.usableAdapters();
    for (const AdapterFacts &facts : pc.adapters) {
        if (facts.kind == AdapterKind::Part)
            continue;
        if (facts.addresses().isEmpty())
            findings.append(withoutAddress(facts, !usable.isEmpty()));
        else
            findings.append(withAddress(facts, usable.size() <= 1));
    }
    const bool isTold = std::any_of(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.severity == Severity::Problem;
    });
    if (usable.isEmpty() && !isTold)
        findings.append({u"network"_s,
                         {},
                         Severity::Problem,
                         Text::tr("This PC is in no network."),
                         Text::tr("Plug in a cable, or join a Wi-Fi."),
                         {}});
    findings.append(linkLocalFindings(usable));
    const QList<Finding> swallowed = swallowedNetworks(pc);
    findings.append(swallowed.isEmpty() ? defaultByVpn(pc) : swallowed);
    return findings;
}

QString vpnThatTakes(const PcFacts &pc, quint32 address)
{
    const NetworkRoute *best = nullptr;
    for (const NetworkRoute &route : pc.routes) {
        if (!isInSubnet(address, route.network, route.prefixLength))
            continue;
        if (!best || route.prefixLength > best->prefixLength ||
            (route.prefixLength == best->prefixLength && route.metric < best->metric))
            best = &route;
    }
    const AdapterFacts *const vpn = best ? vpnOf(pc, *best) : nullptr;
    return vpn ? vpn->adapter.name : QString();
}

} // namespace Zandrove
