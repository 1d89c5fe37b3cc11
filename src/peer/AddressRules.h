#pragma once

#include "support/NetworkAdapters.h"

#include <QLatin1StringView>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Zandrove {

/// How every link-local IPv4 address begins.
constexpr QLatin1StringView LinkLocalPrefix("169.254.");
/// Addresses of a /24 that a PC can have.
constexpr int HostsPerSubnet = 254;

[[nodiscard]] inline bool isIPv4(const QHostAddress &ip)
{
    return ip.protocol() == QHostAddress::IPv4Protocol;
}

/// Whether `ip` is written as an IPv4 address in 10/8, 172.16/12 or 192.168/16.
[[nodiscard]] bool isPrivateIP(const QString &ip);

/// Whether two IPv4 addresses share their first two octets where one of them is
/// link-local, else their first three.
[[nodiscard]] bool isSameSubnet(const QString &a, const QString &b);

/// The addresses that a sweep tries at `layer` (0 to 5), in order: for each link-local address of an adapter
/// that is up its own /24 and `layer` neighbours on either side, for each private address its /24. Leaves out
/// `ownAddresses` and repeats.
[[nodiscard]] QStringList scanTargets(const QList<NetworkAdapter> &adapters,
                                      const QSet<QString> &ownAddresses, int layer);

} // namespace Zandrove
