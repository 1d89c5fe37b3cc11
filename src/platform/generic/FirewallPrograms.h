#pragma once

#include "platform/Firewall.h"
#include "platform/PortHolders.h"

/// What the programs that keep a firewall print, read. They are asked in the language C.
namespace Zandrove::Platform {

/// Whether "ufw status verbose" says that it is active.
[[nodiscard]] bool ufwIsActive(const QString &status);

/// Whether ufw lets `port` in by IPv4, from the text of "ufw status verbose".
[[nodiscard]] Passage ufwPassage(const QString &status, Transport transport, quint16 port);

/// The zone that an adapter is in, from the text of "firewall-cmd --list-all-zones".
[[nodiscard]] QString firewalldZone(const QString &zones, const QString &adapter, const QString &defaultZone);

/// Whether a zone of that text lets `port` in.
[[nodiscard]] Passage firewalldPassage(const QString &zones, const QString &zone, Transport transport,
                                       quint16 port);

} // namespace Zandrove::Platform
