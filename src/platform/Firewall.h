#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Zandrove::Platform {

/// Whether what comes for a port is let in.
enum class Passage {
    Open,
    Closed,
    Unknown, ///< for some senders or adapters, or by rules that can't be judged
};

/// What a firewall of this PC says of itself.
struct FirewallReport
{
    enum State {
        Off,
        On,
        NoRights, ///< only an administrator may read it; `command` reads it
        NoAnswer, ///< it is there, and said nothing that could be read; `command` reads it
    };

    QString name;
    State state = Off;
    Passage tcp = Passage::Unknown; ///< while it is on
    Passage udp = Passage::Unknown;
    /// Of one that is on: opens both ports where one is closed, shows the rules where one is unknown.
    QString command;
};

/// What is to be let in, and where.
struct FirewallQuestion
{
    quint16 tcpPort = 0;
    quint16 udpPort = 0;
    QStringList adapters; ///< those that are in use, by QNetworkInterface::name()
    QString program;      ///< path of the program that listens
};

/// Asks each firewall that is installed, by its own means, and changes nothing. Blocks while their programs
/// run, some seconds at the most.
[[nodiscard]] QList<FirewallReport> readFirewalls(const FirewallQuestion &question);

/// The connected networks, by name, that the system treats as public; empty on a system without such a thing.
[[nodiscard]] QStringList publicNetworks();

} // namespace Zandrove::Platform
