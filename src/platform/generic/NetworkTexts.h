#pragma once

#include "platform/NetworkFacts.h"
#include "platform/PortHolders.h"

#include <QByteArray>

/// What the kernel writes of its network, read.
namespace Zandrove::Platform {

/// The kind of the adapter whose folder below /sys/class/net is `folder`.
[[nodiscard]] AdapterKind kindFrom(const QString &folder);

/// The routes in the text of /proc/net/route; lines that aren't one are left out.
[[nodiscard]] QList<NetworkRoute> routesFrom(const QByteArray &text);

/// The adapters in the text of /proc/net/arp with an entry that is complete.
[[nodiscard]] QStringList neighboursFrom(const QByteArray &text);

/// The inodes of the sockets that hold `port`, in the text of /proc/net/tcp, udp, or their namesakes with
/// a 6.
[[nodiscard]] QList<quint64> socketsFrom(const QByteArray &text, Transport transport, quint16 port);

} // namespace Zandrove::Platform
