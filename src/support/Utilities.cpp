#include "support/Utilities.h"

#include "platform/Identity.h"

#include <QHostInfo>
#include <QSysInfo>

#include <algorithm>
#include <bit>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 MiB = 1024 * KiB;
constexpr qint64 GiB = 1024 * MiB;
constexpr qint64 TiB = 1024 * GiB;

/// What a wired adapter is worth beside a wireless one with an address of the same kind.
constexpr int WiredBonus = 10;

QString withUnit(double value, int decimals, QLatin1StringView unit)
{
    return QString::number(value, 'f', decimals) + unit;
}

QString twoDigits(int number)
{
    return QString::number(number).rightJustified(2, u'0');
}

bool isWiredName(const QString &adapterName)
{
    static const QStringList WiredWords = {u"ethernet"_s, u"以太网"_s, u"lan"_s, u"有线"_s};
    const QString name = adapterName.toLower();
    return std::any_of(WiredWords.cbegin(), WiredWords.cend(),
                       [&name](const QString &word) { return name.contains(word); });
}

int addressScore(const QString &address)
{
    if (address.startsWith("192.168."_L1))
        return 100;
    if (address.startsWith("10."_L1))
        return 50;
    if (address.startsWith("172."_L1))
        return 25;
    if (address.startsWith("169.254."_L1))
        return 10;
    return 0;
}

} // namespace

quint32 calculateChecksum(const QByteArray &data)
{
    quint32 sum = 0;
    for (const char byte : data)
        sum = std::rotl(sum + static_cast<unsigned char>(byte), 1);
    return sum;
}

QString formatTime(int seconds)
{
    const int total = std::max(seconds, 0);
    const int hours = total / 3600;
    const QString minutesText = twoDigits(total % 3600 / 60);
    const QString secondsText = twoDigits(total % 60);
    if (hours > 0)
        return u"%1:%2:%3"_s.arg(QString::number(hours), minutesText, secondsText);
    return u"%1:%2"_s.arg(minutesText, secondsText);
}

QString formatSize(qint64 bytes)
{
    const auto value = double(bytes);
    if (bytes < 0)
        return u"0 B"_s;
    if (bytes >= TiB)
        return withUnit(value / double(TiB), 2, " TB"_L1);
    if (bytes >= GiB)
        return withUnit(value / double(GiB), 2, " GB"_L1);
    if (bytes >= MiB)
        return withUnit(value / double(MiB), 1, " MB"_L1);
    if (bytes >= KiB)
        return withUnit(value / double(KiB), 1, " KB"_L1);
    return QString::number(bytes) + " B"_L1;
}

QString formatSpeed(double bytesPerSecond)
{
    const double value = std::max(bytesPerSecond, 0.0);
    if (value >= double(GiB))
        return withUnit(value / double(GiB), 1, " GB/s"_L1);
    if (value >= double(MiB))
        return withUnit(value / double(MiB), 1, " MB/s"_L1);
    if (value >= double(KiB))
        return withUnit(value / double(KiB), 1, " KB/s"_L1);
    return withUnit(value, 0, " B/s"_L1);
}

QString getComputerName()
{
    const auto name = Platform::shortComputerName();
    return name ? *name : QHostInfo::localHostName();
}

QString getLocalIP()
{
    return bestLocalAddress(systemNetworkAdapters());
}

QString bestLocalAddress(const QList<NetworkAdapter> &adapters)
{
    int bestScore = -1;
    QString best = u"127.0.0.1"_s;
    for (const NetworkAdapter &adapter : adapters) {
        if (!adapter.up || !adapter.running || adapter.loopback)
            continue;
        const int bonus = isWiredName(adapter.name) ? WiredBonus : 0;
        for (const AdapterAddress &entry : adapter.addresses) {
            if (!isPrivateAddress(entry.ip))
                continue;
            const QString address = entry.ip.toString();
            const int score = addressScore(address) + bonus;
            if (score > bestScore) {
                bestScore = score;
                best = address;
            }
        }
    }
    return best;
}

QString getOSVersion()
{
    const auto version = Platform::registeredSystemVersion();
    if (version.productName.isEmpty())
        return QSysInfo::prettyProductName();
    QString text = version.productName;
    if (!version.displayVersion.isEmpty())
        text += u' ' + version.displayVersion;
    return text + " (Build "_L1 + version.currentBuildNumber + u')';
}

bool isPrivateAddress(const QHostAddress &address)
{
    static const QList<std::pair<QHostAddress, int>> PrivateNetworks = {
        QHostAddress::parseSubnet(u"10.0.0.0/8"_s), QHostAddress::parseSubnet(u"172.16.0.0/12"_s),
        QHostAddress::parseSubnet(u"192.168.0.0/16"_s), QHostAddress::parseSubnet(u"169.254.0.0/16"_s)};
    return address.protocol() == QHostAddress::IPv4Protocol &&
           std::any_of(PrivateNetworks.cbegin(), PrivateNetworks.cend(),
                       [&address](const auto &network) { return address.isInSubnet(network); });
}

} // namespace Zandrove
