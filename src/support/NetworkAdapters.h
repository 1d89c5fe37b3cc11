#pragma once

#include <QHostAddress>
#include <QList>
#include <QString>

#include <functional>

namespace Zandrove {

/// One address of a network adapter.
struct AdapterAddress
{
    QHostAddress ip;
    QHostAddress broadcast; ///< null where the adapter has none
    int prefixLength = -1;  ///< of its subnet, in bits; -1 where it isn't known
};

/// A network adapter of this machine, as a plain value, so that address rules can be
/// tested on a made-up machine.
struct NetworkAdapter
{
    QString name; ///< human-readable name
    bool up = false;
    bool running = false;
    bool loopback = false;
    bool canBroadcast = false;
    QList<AdapterAddress> addresses; ///< in the system's order
    bool wired = false;              ///< by a cable, as far as the system tells
    QString systemName;              ///< by which the rest of the system knows it
};

/// Source of the adapters; called anew each time they are needed.
using AdapterSource = std::function<QList<NetworkAdapter>()>;

/// The adapters that the operating system reports now.
[[nodiscard]] QList<NetworkAdapter> systemNetworkAdapters();

} // namespace Zandrove
