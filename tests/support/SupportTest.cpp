#include "TestMain.h"
#include "support/Utilities.h"

#include <QTest>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

NetworkAdapter adapter(const QString &name, const QStringList &addresses)
{
    NetworkAdapter result;
    result.name = name;
    result.up = true;
    result.running = true;
    for (const QString &address : addresses)
        result.addresses.append({QHostAddress(address), {}});
    return result;
}

} // namespace

class SupportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void payloadIsSummed_data()
    {
        addColumns<QByteArray, quint32>("payload", "checksum");
        QTest::newRow("empty") << QByteArray() << 0u;
        QTest::newRow("two bytes") << QByteArray::fromHex("0102") << 8u;
        QTest::newRow("byte is unsigned") << QByteArray::fromHex("80") << 0x100u;
        QTest::newRow("order counts") << QByteArray::fromHex("0201") << 10u;
        QTest::newRow("top bit comes round") << QByteArray::fromHex("80") + QByteArray(24, '\0') << 1u;
    }
    void payloadIsSummed()
    {
        QFETCH(QByteArray, payload);
        QTEST(calculateChecksum(payload), "checksum");
    }

    void timeIsFormatted_data()
    {
        addColumns<int, QString>("seconds", "text");
        QTest::newRow("negative") << -1 << u"00:00"_s;
        QTest::newRow("seconds") << 59 << u"00:59"_s;
        QTest::newRow("below an hour") << 3599 << u"59:59"_s;
        QTest::newRow("hours unpadded") << 3661 << u"1:01:01"_s;
        QTest::newRow("many hours") << 360000 << u"100:00:00"_s;
    }
    void timeIsFormatted()
    {
        QFETCH(int, seconds);
        QTEST(formatTime(seconds), "text");
    }

    void sizeIsFormatted_data()
    {
        addColumns<qint64, QString>("bytes", "text");
        QTest::newRow("negative") << qint64(-1) << u"0 B"_s;
        QTest::newRow("zero") << qint64(0) << u"0 B"_s;
        QTest::newRow("below a kilobyte") << qint64(1023) << u"1023 B"_s;
        QTest::newRow("a kilobyte") << qint64(1024) << u"1.0 KB"_s;
        QTest::newRow("half rounds up") << qint64(1280) << u"1.3 KB"_s;
        QTest::newRow("rounding keeps the unit") << qint64(1048575) << u"1024.0 KB"_s;
        QTest::newRow("a megabyte") << qint64(1048576) << u"1.0 MB"_s;
        QTest::newRow("a gigabyte") << qint64(1073741824) << u"1.00 GB"_s;
        QTest::newRow("a terabyte") << qint64(1099511627776) << u"1.00 TB"_s;
        QTest::newRow("largest") << std::numeric_limits<qint64>::max() << u"8388608.00 TB"_s;
    }
    void sizeIsFormatted()
    {
        QFETCH(qint64, bytes);
        QTEST(formatSize(bytes), "text");
    }

    void speedIsFormatted_data()
    {
        addColumns<double, QString>("bytesPerSecond", "text");
        QTest::newRow("negative") << -5.0 << u"0 B/s"_s;
        QTest::newRow("half rounds up") << 2.5 << u"3 B/s"_s;
        QTest::newRow("rounding keeps the unit") << 1023.9 << u"1024 B/s"_s;
        QTest::newRow("kilobytes") << 1536.0 << u"1.5 KB/s"_s;
        QTest::newRow("a megabyte") << 1048576.0 << u"1.0 MB/s"_s;
        QTest::newRow("gigabytes") << 1099511627776.0 << u"1024.0 GB/s"_s;
    }
    void speedIsFormatted()
    {
        QFETCH(double, bytesPerSecond);
        QTEST(formatSpeed(bytesPerSecond), "text");
    }

    void privateNetworksAreKnown_data()
    {
        addColumns<QString, bool>("address", "isPrivate");
        const QStringList privateOnes = {u"10.0.0.0"_s,       u"10.255.255.255"_s, u"172.16.0.1"_s,
                                         u"172.31.255.255"_s, u"192.168.0.1"_s,    u"169.254.9.9"_s};
        const QStringList others = {u"9.255.255.255"_s, u"11.0.0.0"_s, u"172.15.255.255"_s,  u"172.32.0.1"_s,
                                    u"192.169.0.1"_s,   u"8.8.8.8"_s,  u"::ffff:10.0.0.1"_s, u"fe80::1"_s,
                                    u"127.0.0.1"_s,     u""_s};
        for (const QString &address : privateOnes)
            QTest::addRow("%s", qPrintable(address)) << address << true;
        for (const QString &address : others)
            QTest::addRow("'%s'", qPrintable(address)) << address << false;
    }
    void privateNetworksAreKnown()
    {
        QFETCH(QString, address);
        QTEST(isPrivateAddress(QHostAddress(address)), "isPrivate");
    }

    void bestAddressIsAnnounced_data()
    {
        addColumns<QList<NetworkAdapter>, QString>("adapters", "address");
        using Adapters = QList<NetworkAdapter>;

        QTest::newRow("none") << Adapters{} << u"127.0.0.1"_s;
        QTest::newRow("kind before wire")
            << Adapters{adapter(u"Ethernet"_s, {u"10.0.0.5"_s}), adapter(u"Wi-Fi"_s, {u"192.168.1.9"_s})}
            << u"192.168.1.9"_s;
        QTest::newRow("wire decides within a kind") << Adapters{adapter(u"Wi-Fi"_s, {u"192.168.1.9"_s}),
                                                                adapter(u"Ethernet 2"_s, {u"192.168.56.1"_s})}
                                                    << u"192.168.56.1"_s;
        QTest::newRow("Chinese wired name")
            << Adapters{adapter(u"Wi-Fi"_s, {u"10.0.0.1"_s}), adapter(u"以太网 2"_s, {u"10.0.0.2"_s})}
            << u"10.0.0.2"_s;
        QTest::newRow("first of equals") << Adapters{adapter(u"eth0"_s, {u"10.0.0.1"_s, u"10.0.0.2"_s}),
                                                     adapter(u"eth1"_s, {u"10.0.0.3"_s})}
                                         << u"10.0.0.1"_s;
        QTest::newRow("link-local last")
            << Adapters{adapter(u"LAN"_s, {u"169.254.9.9"_s, u"172.16.0.1"_s})} << u"172.16.0.1"_s;
        QTest::newRow("not private, not IPv4")
            << Adapters{adapter(u"eth0"_s, {u"172.32.0.1"_s, u"8.8.8.8"_s, u"fe80::1"_s})} << u"127.0.0.1"_s;

        Adapters unusable(3, adapter(u"Ethernet"_s, {u"192.168.1.1"_s}));
        unusable[0].up = false;
        unusable[1].running = false;
        unusable[2].loopback = true;
        QTest::newRow("down, not running, loopback") << unusable << u"127.0.0.1"_s;
    }
    void bestAddressIsAnnounced()
    {
        QFETCH(QList<NetworkAdapter>, adapters);
        QTEST(bestLocalAddress(adapters), "address");
    }

    void thisMachineHasALoopbackAdapter()
    {
        const auto adapters = systemNetworkAdapters();
        const auto loopback =
            std::find_if(adapters.cbegin(), adapters.cend(),
                         [](const NetworkAdapter &candidate) { return candidate.loopback; });
        if (loopback == adapters.cend())
            QSKIP("this machine has no loopback adapter");
        QVERIFY(!loopback->name.isEmpty());
        QVERIFY(!loopback->up || loopback->addresses.constFirst().ip.isLoopback());
    }
};

ZANDROVE_TEST(SupportTest)
#include "SupportTest.moc"
