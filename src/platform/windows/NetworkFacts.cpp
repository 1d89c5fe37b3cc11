#include "platform/NetworkFacts.h"

// In this order: what is declared in one header is needed by the next.
#include <winsock2.h>
#include <ws2ipdef.h>

#include <iphlpapi.h>
#include <netioapi.h>

#include "platform/windows/NativePath.h"

#include <QByteArray>
#include <QtEndian>

#include <bit>
#include <memory>

namespace Zandrove::Platform {

namespace {

constexpr qsizetype SpareBytes = 4096;
constexpr ULONG VirtualType = 53; // IF_TYPE_PROP_VIRTUAL, that of most VPNs

struct TableDeleter
{
    void operator()(void *table) const { FreeMibTable(table); }
};

QString nameOf(const NET_LUID &adapter)
{
    wchar_t name[IF_MAX_STRING_SIZE + 1] = {};
    if (ConvertInterfaceLuidToNameW(&adapter, name, IF_MAX_STRING_SIZE + 1) != NO_ERROR)
        return {};
    return QString::fromWCharArray(name);
}

QString nameOf(NET_IFINDEX index)
{
    NET_LUID adapter = {};
    return ConvertInterfaceIndexToLuid(index, &adapter) == NO_ERROR ? nameOf(adapter) : QString();
}

} // namespace

AdapterKind adapterKind(const QString &adapter)
{
    MIB_IF_ROW2 row = {};
    if (ConvertInterfaceNameToLuidW(wide(adapter), &row.InterfaceLuid) != NO_ERROR ||
        GetIfEntry2(&row) != NO_ERROR)
        return AdapterKind::Unknown;
    switch (row.Type) {
    case IF_TYPE_IEEE80211:
        return AdapterKind::Wireless;
    case IF_TYPE_ETHERNET_CSMACD:
        return row.InterfaceAndOperStatusFlags.HardwareInterface ? AdapterKind::Wired : AdapterKind::Virtual;
    case IF_TYPE_PPP:
    case IF_TYPE_TUNNEL:
    case VirtualType:
        return AdapterKind::Vpn;
    default:
        return AdapterKind::Unknown;
    }
}

QList<NetworkRoute> networkRoutes()
{
    ULONG size = 0;
    GetIpForwardTable(nullptr, &size, FALSE);
    QByteArray buffer(qsizetype(size) + SpareBytes, Qt::Uninitialized); // for routes that come meanwhile
    size = ULONG(buffer.size());
    auto *const table = reinterpret_cast<MIB_IPFORWARDTABLE *>(buffer.data());
    if (GetIpForwardTable(table, &size, FALSE) != NO_ERROR)
        return {};
    QList<NetworkRoute> routes;
    for (DWORD i = 0; i < table->dwNumEntries; ++i) {
        const MIB_IPFORWARDROW &row = table->table[i];
        routes.append({.adapter = nameOf(row.dwForwardIfIndex),
                       .network = qFromBigEndian<quint32>(row.dwForwardDest),
                       .prefixLength = std::popcount(quint32(row.dwForwardMask)),
                       .metric = quint32(row.dwForwardMetric1)}); // that of the adapter included
    }
    return routes;
}

QStringList adaptersWithNeighbours()
{
    MIB_IPNET_TABLE2 *table = nullptr;
    if (GetIpNetTable2(AF_INET, &table) != NO_ERROR)
        return {};
    const std::unique_ptr<MIB_IPNET_TABLE2, TableDeleter> owner(table);
    QStringList adapters;
    for (ULONG i = 0; i < table->NumEntries; ++i) {
        const MIB_IPNET_ROW2 &row = table->Table[i];
        const bool hasAnswered = row.State == NlnsReachable || row.State == NlnsStale ||
                                 row.State == NlnsDelay || row.State == NlnsProbe;
        const QString adapter = hasAnswered ? nameOf(row.InterfaceLuid) : QString();
        if (hasAnswered && !adapters.contains(adapter))
            adapters.append(adapter);
    }
    return adapters;
}

} // namespace Zandrove::Platform
