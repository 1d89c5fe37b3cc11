#pragma once

#include "platform/Firewall.h"
#include "platform/PortHolders.h"

#include <optional>

/// The rules of Windows' firewall, as the registry holds them: one text each.
namespace Zandrove::Platform {

/// A rule for what comes in.
struct FirewallRule
{
    QString name;
    bool allows = false;         ///< else it blocks
    std::optional<int> protocol; ///< of IP: 6, 17; none for all
    QStringList ports;           ///< numbers and ranges such as "52000-53000"; empty for all
    QStringList profiles;        ///< "Domain", "Private", "Public"; empty for all
    QString program;             ///< path; empty for all
    bool isForSome = false;      ///< for some senders or adapters only
};

/// What comes in.
struct IncomingTraffic
{
    Transport transport = Transport::Tcp;
    quint16 port = 0;
    QString profile; ///< of the network that it comes by
    QString program; ///< path of the program that it is for
};

/// Reads "v2.30|Action=Allow|Active=TRUE|Dir=In|...". Nothing for a rule that isn't on, is for what goes out,
/// or is for a service of the system.
[[nodiscard]] std::optional<FirewallRule> firewallRule(const QString &text);

/// Whether the rules let it in: one that blocks goes before all that allow, and what none allows is blocked.
/// Unknown where it is up to the sender.
[[nodiscard]] Passage passageBy(const QList<FirewallRule> &rules, const IncomingTraffic &traffic);

/// The names of the rules that block it.
[[nodiscard]] QStringList rulesThatBlock(const QList<FirewallRule> &rules, const IncomingTraffic &traffic);

} // namespace Zandrove::Platform
