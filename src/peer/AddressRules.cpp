#include "peer/AddressRules.h"

#include "peer/Log.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr int FirstHost = 1;
constexpr int LastHost = 254;
static_assert(HostsPerSubnet == LastHost - FirstHost + 1);
constexpr int HighestOctet = 255;

/// Addresses in the order they were added, each once.
class TargetList
{
public:
    explicit TargetList(const QSet<QString> &excluded)
        : m_seen(excluded)
    {
    }

    /// Adds the hosts of the /24 that starts with `prefix`, as in "10.0.0.".
    void addSubnet(const QString &prefix)
    {
        for (int host = FirstHost; host <= LastHost; ++host) {
            const QString ip = prefix + QString::number(host);
            if (m_seen.contains(ip))
                continue;
            m_seen.insert(ip);
            m_targets.append(ip);
        }
    }

    [[nodiscard]] QStringList targets() const { return m_targets; }

private:
    QSet<QString> m_seen;
    QStringList m_targets;
};

void addTargetsAround(const QString &ip, const QString &adapterName, int layer, TargetList &list)
{
    const QStringList octets = ip.split(u'.');
    if (octets.size() != 4)
        return;
    if (ip.startsWith(LinkLocalPrefix)) {
        qCDebug(logPeer) << "[CableModeHelper] Found APIPA:" << ip << "on" << adapterName
                         << "layer:" << layer;
        const int own = octets.at(2).toInt();
        for (int third = std::max(own - layer, 0); third <= std::min(own + layer, HighestOctet); ++third)
            list.addSubnet(LinkLocalPrefix + QString::number(third) + u'.');
    } else if (isPrivateIP(ip)) {
        qCDebug(logPeer) << "[CableModeHelper] Found private network:" << ip;
        list.addSubnet(octets.first(3).join(u'.') + u'.');
    }
}

} // namespace

bool isPrivateIP(const QString &ip)
{
    if (ip.startsWith("10."_L1) || ip.startsWith("192.168."_L1))
        return true;
    if (!ip.startsWith("172."_L1))
        return false;
    const int second = ip.section(u'.', 1, 1).toInt();
    return second >= 16 && second <= 31;
}

bool isSameSubnet(const QString &a, const QString &b)
{
    bool aIsIPv4 = false;
    bool bIsIPv4 = false;
    const quint32 first = QHostAddress(a).toIPv4Address(&aIsIPv4);
    const quint32 second = QHostAddress(b).toIPv4Address(&bIsIPv4);
    const bool linkLocal = a.startsWith(LinkLocalPrefix) || b.startsWith(LinkLocalPrefix);
    const quint32 mask = linkLocal ? 0xFFFF0000 : 0xFFFFFF00;
    return aIsIPv4 && bIsIPv4 && (first & mask) == (second & mask);
}

QStringList scanTargets(const QList<NetworkAdapter> &adapters, const QSet<QString> &ownAddresses, int layer)
{
    TargetList list(ownAddresses);
    for (const NetworkAdapter &adapter : adapters) {
        if (!adapter.up || adapter.loopback)
            continue;
        for (const AdapterAddress &entry : adapter.addresses) {
            if (isIPv4(entry.ip))
                addTargetsAround(entry.ip.toString(), adapter.name, layer, list);
        }
    }
    return list.targets();
}

} // namespace Zandrove
