#include "support/NetworkAdapters.h"

#include <QNetworkInterface>

namespace Zandrove {

namespace {

NetworkAdapter adapterFrom(const QNetworkInterface &networkInterface)
{
    const auto flags = networkInterface.flags();
    NetworkAdapter adapter;
    adapter.name = networkInterface.humanReadableName();
    adapter.up = flags.testFlag(QNetworkInterface::IsUp);
    adapter.running = flags.testFlag(QNetworkInterface::IsRunning);
    adapter.loopback = flags.testFlag(QNetworkInterface::IsLoopBack);
    adapter.canBroadcast = flags.testFlag(QNetworkInterface::CanBroadcast);
    adapter.wired = networkInterface.type() == QNetworkInterface::Ethernet;
    const auto entries = networkInterface.addressEntries();
    for (const QNetworkAddressEntry &entry : entries)
        adapter.addresses.append({entry.ip(), entry.broadcast(), entry.prefixLength()});
    adapter.systemName = networkInterface.name();
    return adapter;
}

} // namespace

QList<NetworkAdapter> systemNetworkAdapters()
{
    QList<NetworkAdapter> adapters;
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &networkInterface : interfaces)
        adapters.append(adapterFrom(networkInterface));
    return adapters;
}

} // namespace Zandrove
