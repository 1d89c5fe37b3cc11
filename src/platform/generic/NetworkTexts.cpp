#include "platform/generic/NetworkTexts.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <bit>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

constexpr qint64 LongestFact = 4096; // bytes
constexpr uint TunFlag = 0x1;        // IFF_TUN
constexpr uint EthernetType = 1;     // ARPHRD_ETHER
constexpr uint RouteUp = 0x1;        // RTF_UP
constexpr uint RouteReject = 0x200;  // RTF_REJECT
constexpr uint NeighbourComplete = 0x2;
constexpr uint TcpListens = 0x0A;

QByteArray fact(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(LongestFact).trimmed() : QByteArray();
}

/// The fields of each line but the first, which names them.
QList<QList<QByteArray>> rowsOf(const QByteArray &text, qsizetype fields)
{
    QList<QList<QByteArray>> rows;
    const QList<QByteArray> lines = text.split('\n').mid(1);
    for (const QByteArray &line : lines) {
        const QList<QByteArray> row = line.simplified().split(' ');
        if (row.size() >= fields)
            rows.append(row);
    }
    return rows;
}

/// An IPv4 address as the kernel prints it: the bytes of the address, as a number of this machine.
quint32 addressFrom(const QByteArray &hex)
{
    return qFromBigEndian(hex.toUInt(nullptr, 16));
}

} // namespace

AdapterKind kindFrom(const QString &folder)
{
    if (QFileInfo::exists(folder + "/master"_L1))
        return AdapterKind::Part;
    const QByteArray tunFlags = fact(folder + "/tun_flags"_L1);
    if (!tunFlags.isEmpty())
        return (tunFlags.toUInt(nullptr, 0) & TunFlag) != 0 ? AdapterKind::Vpn : AdapterKind::Virtual;
    if (fact(folder + "/uevent"_L1).contains("DEVTYPE=wireguard"))
        return AdapterKind::Vpn;
    if (QFileInfo::exists(folder + "/wireless"_L1) || QFileInfo::exists(folder + "/phy80211"_L1))
        return AdapterKind::Wireless;
    const QByteArray type = fact(folder + "/type"_L1);
    if (type.isEmpty())
        return AdapterKind::Unknown;
    const bool isHardware = QFileInfo::exists(folder + "/device"_L1);
    if (!isHardware)
        return AdapterKind::Virtual;
    return type.toUInt() == EthernetType ? AdapterKind::Wired : AdapterKind::Unknown;
}

QList<NetworkRoute> routesFrom(const QByteArray &text)
{
    QList<NetworkRoute> routes;
    const auto rows = rowsOf(text, 8);
    for (const QList<QByteArray> &row : rows) {
        const uint flags = row.at(3).toUInt(nullptr, 16);
        if ((flags & RouteUp) == 0 || (flags & RouteReject) != 0)
            continue;
        routes.append({.adapter = QString::fromLocal8Bit(row.at(0)),
                       .network = addressFrom(row.at(1)),
                       .prefixLength = std::popcount(addressFrom(row.at(7))),
                       .metric = row.at(6).toUInt()});
    }
    return routes;
}

QStringList neighboursFrom(const QByteArray &text)
{
    QStringList adapters;
    const auto rows = rowsOf(text, 6);
    for (const QList<QByteArray> &row : rows) {
        const QString adapter = QString::fromLocal8Bit(row.at(5));
        if ((row.at(2).toUInt(nullptr, 0) & NeighbourComplete) != 0 && !adapters.contains(adapter))
            adapters.append(adapter);
    }
    return adapters;
}

QList<quint64> socketsFrom(const QByteArray &text, Transport transport, quint16 port)
{
    QList<quint64> sockets;
    const auto rows = rowsOf(text, 10);
    for (const QList<QByteArray> &row : rows) {
        const QByteArray localPort = row.at(1).mid(row.at(1).lastIndexOf(':') + 1);
        const bool listens = transport == Transport::Udp || row.at(3).toUInt(nullptr, 16) == TcpListens;
        if (listens && localPort.toUInt(nullptr, 16) == port)
            sockets.append(row.at(9).toULongLong());
    }
    return sockets;
}

} // namespace Zandrove::Platform
