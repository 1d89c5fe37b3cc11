#include "platform/Firewall.h"

#include "platform/FirewallRule.h"
#include "platform/Registry.h"
#include "platform/windows/ComPtr.h"

#include <netlistmgr.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

struct ConnectedNetwork
{
    QString name;
    NLM_NETWORK_CATEGORY category = NLM_NETWORK_CATEGORY_PUBLIC;
};

ConnectedNetwork described(INetwork &network)
{
    ConnectedNetwork result;
    BSTR name = nullptr;
    if (SUCCEEDED(network.GetName(&name)) && name)
        result.name = QString::fromWCharArray(name);
    SysFreeString(name);
    if (FAILED(network.GetCategory(&result.category)))
        result.category = NLM_NETWORK_CATEGORY_PUBLIC;
    return result;
}

/// The networks that this PC is in now; empty where the system does not tell.
QList<ConnectedNetwork> connectedNetworks()
{
    const ComScope com;
    const auto manager =
        createComObject<INetworkListManager>(CLSID_NetworkListManager, __uuidof(INetworkListManager));
    IEnumNetworks *found = nullptr;
    if (!com.isUsable() || !manager || FAILED(manager->GetNetworks(NLM_ENUM_NETWORK_CONNECTED, &found)) ||
        !found)
        return {};
    const ComPtr<IEnumNetworks> all(found);
    QList<ConnectedNetwork> networks;
    INetwork *next = nullptr;
    ULONG fetched = 0;
    while (all->Next(1, &next, &fetched) == S_OK && fetched == 1) {
        const ComPtr<INetwork> network(next);
        networks.append(described(*network));
    }
    return networks;
}

/// The profile of a network's category: its name in a rule, and the key with its switch.
std::pair<QString, QString> profileOf(NLM_NETWORK_CATEGORY category)
{
    switch (category) {
    case NLM_NETWORK_CATEGORY_PRIVATE:
        return {u"Private"_s, u"StandardProfile"_s};
    case NLM_NETWORK_CATEGORY_DOMAIN_AUTHENTICATED:
        return {u"Domain"_s, u"DomainProfile"_s};
    case NLM_NETWORK_CATEGORY_PUBLIC:
        break;
    }
    return {u"Public"_s, u"PublicProfile"_s};
}

RegistryKey policy()
{
    return RegistryKey(
        u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy"_s,
        RegistryView::Native);
}

QList<FirewallRule> allRules()
{
    const RegistryKey key = policy().subkey(u"FirewallRules"_s);
    QList<FirewallRule> rules;
    const QStringList names = key.valueNames();
    for (const QString &name : names) {
        if (const auto rule = firewallRule(key.text(name)))
            rules.append(*rule);
    }
    return rules;
}

QString ruleCommand(const QString &name, const QString &protocol, quint16 port)
{
    return u"netsh advfirewall firewall add rule name=\"%1\" dir=in action=allow protocol=%2 localport=%3 "
           u"profile=any"_s.arg(name, protocol, QString::number(port));
}

QString openCommand(const FirewallQuestion &question, const QStringList &blockers, Passage tcp, Passage udp)
{
    QStringList commands;
    for (const QString &blocker : blockers) {
        if (!blocker.contains(u'"') && !blocker.contains(u'%'))
            commands.append(
                u"netsh advfirewall firewall set rule name=\"%1\" dir=in new enable=no"_s.arg(blocker));
    }
    if (tcp != Passage::Open)
        commands.append(ruleCommand(u"Zandrove TCP"_s, u"tcp"_s, question.tcpPort));
    if (udp != Passage::Open)
        commands.append(ruleCommand(u"Zandrove UDP"_s, u"udp"_s, question.udpPort));
    return commands.join(u" && "_s);
}

void lower(Passage &passage, Passage other)
{
    if (passage == Passage::Open || other == Passage::Closed)
        passage = other;
}

/// Judges the rules for the networks that this PC is in; where none is known, as in a public one.
FirewallReport judged(const FirewallQuestion &question, const QList<ConnectedNetwork> &networks)
{
    const QList<FirewallRule> rules = allRules();
    QStringList blockers;
    FirewallReport report;
    report.name = u"Windows Firewall"_s;
    if (rules.isEmpty()) { // Windows brings hundreds
        report.state = FirewallReport::NoAnswer;
        report.command = u"netsh advfirewall firewall show rule name=\"Zandrove TCP\""_s;
        return report;
    }
    report.tcp = report.udp = Passage::Open;
    const QList<ConnectedNetwork> judgedNetworks =
        networks.isEmpty() ? QList<ConnectedNetwork>{{}} : networks;
    for (const ConnectedNetwork &network : judgedNetworks) {
        const auto [profile, keyName] = profileOf(network.category);
        const RegistryKey profileKey = policy().subkey(keyName);
        if (profileKey.number(u"EnableFirewall"_s, 1) == 0)
            continue;
        report.state = FirewallReport::On;
        const bool blocksAll = profileKey.number(u"DoNotAllowExceptions"_s) != 0;
        const IncomingTraffic tcp{Transport::Tcp, question.tcpPort, profile, question.program};
        const IncomingTraffic udp{Transport::Udp, question.udpPort, profile, question.program};
        lower(report.tcp, blocksAll ? Passage::Closed : passageBy(rules, tcp));
        lower(report.udp, blocksAll ? Passage::Closed : passageBy(rules, udp));
        blockers += rulesThatBlock(rules, tcp) + rulesThatBlock(rules, udp);
    }
    blockers.removeDuplicates();
    if (report.tcp != Passage::Open || report.udp != Passage::Open)
        report.command = openCommand(question, blockers, report.tcp, report.udp);
    return report;
}

} // namespace

QList<FirewallReport> readFirewalls(const FirewallQuestion &question)
{
    if (!policy().exists())
        return {};
    return {judged(question, connectedNetworks())};
}

QStringList publicNetworks()
{
    QStringList names;
    const QList<ConnectedNetwork> networks = connectedNetworks();
    for (const ConnectedNetwork &network : networks) {
        if (network.category == NLM_NETWORK_CATEGORY_PUBLIC)
            names.append(network.name);
    }
    return names;
}

} // namespace Zandrove::Platform
