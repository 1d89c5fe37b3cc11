#include "platform/FirewallRule.h"

#include "platform/FirewallVerdict.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

constexpr int TcpProtocol = 6;
constexpr int UdpProtocol = 17;

QString plainPath(const QString &path)
{
    return QString(path).replace(u'\\', u'/').toCaseFolded();
}

bool containsPort(const QStringList &ports, quint16 port)
{
    return ports.isEmpty() || std::any_of(ports.begin(), ports.end(), [port](const QString &range) {
               return range.section(u'-', 0, 0).toUInt() <= port && port <= range.section(u'-', -1).toUInt();
           });
}

bool isFor(const FirewallRule &rule, const IncomingTraffic &traffic)
{
    const int protocol = traffic.transport == Transport::Tcp ? TcpProtocol : UdpProtocol;
    return rule.protocol.value_or(protocol) == protocol && containsPort(rule.ports, traffic.port) &&
           (rule.profiles.isEmpty() || rule.profiles.contains(traffic.profile)) &&
           (rule.program.isEmpty() || plainPath(rule.program) == plainPath(traffic.program));
}

} // namespace

std::optional<FirewallRule> firewallRule(const QString &text)
{
    static const QStringList foreign{u"Svc"_s, u"AppPkgId"_s, u"PFN"_s, u"LUOwn"_s};
    FirewallRule rule;
    bool isActive = false;
    bool isInbound = false;
    const QStringList fields = text.split(u'|', Qt::SkipEmptyParts);
    for (const QString &field : fields) {
        const QString key = field.section(u'=', 0, 0);
        const QString value = field.section(u'=', 1);
        if (foreign.contains(key))
            return std::nullopt;
        if (key == "Active"_L1)
            isActive = value == "TRUE"_L1;
        else if (key == "Dir"_L1)
            isInbound = value == "In"_L1;
        else if (key == "Action"_L1)
            rule.allows = value == "Allow"_L1;
        else if (key == "Protocol"_L1)
            rule.protocol = value.toInt();
        else if (key.startsWith("LPort"_L1))
            rule.ports.append(value);
        else if (key == "Profile"_L1)
            rule.profiles.append(value);
        else if (key == "App"_L1)
            rule.program = value;
        else if (key == "Name"_L1)
            rule.name = value;
        else if (key.startsWith("RA4"_L1) || key.startsWith("IF"_L1))
            rule.isForSome = rule.isForSome || value != "LocalSubnet"_L1;
    }
    return isActive && isInbound ? std::optional(rule) : std::nullopt;
}

Passage passageBy(const QList<FirewallRule> &rules, const IncomingTraffic &traffic)
{
    FirewallVerdict allowed{false, true};
    FirewallVerdict blocked{true, false};
    for (const FirewallRule &rule : rules) {
        if (!isFor(rule, traffic))
            continue;
        (rule.allows ? allowed.mayPass : blocked.mayEnd) = true;
        if (!rule.isForSome)
            (rule.allows ? allowed.mayEnd : blocked.mayPass) = false;
    }
    if (!blocked.mayPass || !allowed.mayPass)
        return Passage::Closed;
    return blocked.mayEnd || allowed.mayEnd ? Passage::Unknown : Passage::Open;
}

QStringList rulesThatBlock(const QList<FirewallRule> &rules, const IncomingTraffic &traffic)
{
    QStringList names;
    for (const FirewallRule &rule : rules) {
        if (!rule.allows && isFor(rule, traffic))
            names.append(rule.name);
    }
    return names;
}

} // namespace Zandrove::Platform
