#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What the system tells of its network adapters and routes. Adapters go by the system's own name, that of
/// QNetworkInterface::name().
namespace Zandrove::Platform {

enum class AdapterKind {
    Unknown, ///< the system does not tell
    Wired,
    Wireless,
    Virtual, ///< made by software, for machines or programs on this PC
    Vpn,
    Part, ///< of another adapter, a bridge or a bond, which has the address
};

/// An entry of the table by which IPv4 packets find their adapter.
struct NetworkRoute
{
    QString adapter;
    quint32 network = 0;
    int prefixLength = 0; ///< 0 for everything
    quint32 metric = 0;   ///< of equal routes the one with the lower metric is taken
};

[[nodiscard]] AdapterKind adapterKind(const QString &adapter);

/// Empty where the system does not tell.
[[nodiscard]] QList<NetworkRoute> networkRoutes();

/// The adapters on which somebody has answered lately.
[[nodiscard]] QStringList adaptersWithNeighbours();

} // namespace Zandrove::Platform
