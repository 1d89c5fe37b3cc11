#pragma once

#include "core/common/Records.h"
#include "platform/Firewall.h"
#include "platform/NetworkFacts.h"
#include "platform/PortHolders.h"
#include "support/NetworkAdapters.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What the tests of a diagnosis have seen, as plain values. Findings are made of nothing else.
namespace Zandrove {

/// An adapter of this PC.
struct AdapterFacts
{
    enum Broadcast { NotTried, Left, Failed };

    NetworkAdapter adapter;
    Platform::AdapterKind kind = Platform::AdapterKind::Unknown;
    bool hasNeighbours = false; ///< somebody on it has answered lately
    Broadcast broadcast = NotTried;
    QString broadcastError; ///< why it failed
    bool heardBack = false; ///< this PC has heard its own broadcast on it

    /// Its IPv4 addresses.
    [[nodiscard]] QList<AdapterAddress> addresses() const;
    /// Whether another PC may be found by it.
    [[nodiscard]] bool isUsable() const;
};

/// One of the two ports.
struct PortFacts
{
    enum State { Free, Ours, Taken };

    Platform::Transport transport = Platform::Transport::Tcp;
    quint16 port = 0;
    State state = Free;
    QString program; ///< that has taken it; empty where it isn't told
};

/// This PC.
struct PcFacts
{
    QList<AdapterFacts> adapters; ///< those that are up, without the loopback
    QList<Platform::NetworkRoute> routes;
    QList<PortFacts> ports;
    QList<Platform::FirewallReport> firewalls;
    QStringList publicNetworks;

    [[nodiscard]] QList<AdapterFacts> usableAdapters() const;
    /// Whether the port of the datagrams can be had, so that others can be heard at all.
    [[nodiscard]] bool canHear() const;
    /// Whether a firewall keeps the port out.
    [[nodiscard]] bool isClosed(Platform::Transport transport) const;
};

/// A connection that was tried.
struct DialFacts
{
    enum Outcome { NotTried, Answered, Refused, Silent, Failed, UnknownName, OwnAddress };

    Outcome outcome = NotTried;
    QString address; ///< that was tried
    QString error;   ///< why it Failed
};

/// Another PC that was heard.
struct HeardPc
{
    QString id;
    QString name;
    QString code;
    int role = OldPC;
    QStringList addresses; ///< that it was heard from, newest first
    DialFacts dial;
};

/// The others.
struct PeerFacts
{
    int role = -1; ///< a `Role`, this PC's own; -1 where it isn't said
    int seconds = 0;
    QList<HeardPc> heard;
    QString target; ///< what was to be tried as well
    DialFacts dial; ///< of the target
};

/// Whether an address is in the subnet of another one.
[[nodiscard]] bool isInSubnet(quint32 address, quint32 network, int prefixLength);

} // namespace Zandrove
