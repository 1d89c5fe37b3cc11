#include "diagnosis/Facts.h"

#include "peer/AddressRules.h"

#include <algorithm>

namespace Zandrove {

QList<AdapterAddress> AdapterFacts::addresses() const
{
    QList<AdapterAddress> result;
    for (const AdapterAddress &entry : adapter.addresses) {
        if (isIPv4(entry.ip))
            result.append(entry);
    }
    return result;
}

bool AdapterFacts::isUsable() const
{
    return adapter.running && kind != Platform::AdapterKind::Vpn && !addresses().isEmpty();
}

QList<AdapterFacts> PcFacts::usableAdapters() const
{
    QList<AdapterFacts> usable;
    std::copy_if(adapters.begin(), adapters.end(), std::back_inserter(usable),
                 [](const AdapterFacts &facts) { return facts.isUsable(); });
    return usable;
}

bool PcFacts::canHear() const
{
    return std::none_of(ports.begin(), ports.end(), [](const PortFacts &facts) {
        return facts.transport == Platform::Transport::Udp && facts.state == PortFacts::Taken;
    });
}

bool PcFacts::isClosed(Platform::Transport transport) const
{
    return std::any_of(firewalls.begin(), firewalls.end(), [&](const Platform::FirewallReport &report) {
        const auto passage = transport == Platform::Transport::Tcp ? report.tcp : report.udp;
        return report.state == Platform::FirewallReport::On && passage == Platform::Passage::Closed;
    });
}

bool isInSubnet(quint32 address, quint32 network, int prefixLength)
{
    if (prefixLength <= 0)
        return prefixLength == 0;
    const quint32 mask = ~quint32(0) << (32 - std::min(prefixLength, 32));
    return (address & mask) == (network & mask);
}

} // namespace Zandrove
