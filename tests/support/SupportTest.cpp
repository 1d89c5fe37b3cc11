#include "TestMain.h"
#include "support/Json.h"
#include "support/Utilities.h"

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
    void payloadIsSummed()
    {
        QCOMPARE(calculateChecksum({}), 0u);
        QCOMPARE(calculateChecksum(QByteArray::fromHex("0102")), 8u); // the order counts
        QCOMPARE(calculateChecksum(QByteArray::fromHex("0201")), 10u);
        QCOMPARE(calculateChecksum(QByteArray::fromHex("80")), 0x100u); // a byte is unsigned
        QCOMPARE(calculateChecksum(QByteArray::fromHex("80") + QByteArray(24, '\0')), 1u);
    }

    void sizesAreNeverBelowZero()
    {
        const QJsonObject json = parseJsonObject(R"({"a":-5,"b":-0.6,"c":-1e300,"d":1e300,"e":"7"})").value();
        for (const QString &key : {u"a"_s, u"b"_s, u"c"_s, u"gone"_s})
            QVERIFY2(jsonSize(json, key) == 0, qPrintable(key));
        QCOMPARE(jsonSize(json, u"d"_s), qint64(1) << 53);
        QCOMPARE(jsonSize(json, u"e"_s), 7);
    }

    void valuesAreFormatted_data()
    {
        addColumns<QString, QString>("formatted", "text");
        const auto row = [](const QString &formatted, const QString &text) {
            QTest::addRow("%s", qPrintable(text)) << formatted << text;
        };
        row(formatTime(-1), u"00:00"_s);
        row(formatTime(59), u"00:59"_s);
        row(formatTime(3599), u"59:59"_s);
        row(formatTime(3661), u"1:01:01"_s);
        row(formatTime(360000), u"100:00:00"_s);

        row(formatSize(-1), u"0 B"_s);
        row(formatSize(1023), u"1023 B"_s);
        row(formatSize(1024), u"1.0 KB"_s);
        row(formatSize(1280), u"1.3 KB"_s);
        row(formatSize(1048575), u"1024.0 KB"_s); // rounding keeps the unit
        row(formatSize(1048576), u"1.0 MB"_s);
        row(formatSize(1073741824), u"1.00 GB"_s);
        row(formatSize(1099511627776), u"1.00 TB"_s);
        row(formatSize(std::numeric_limits<qint64>::max()), u"8388608.00 TB"_s);

        row(formatSpeed(-5.0), u"0 B/s"_s);
        row(formatSpeed(2.5), u"3 B/s"_s);
        row(formatSpeed(1023.9), u"1024 B/s"_s);
        row(formatSpeed(1536.0), u"1.5 KB/s"_s);
        row(formatSpeed(1048576.0), u"1.0 MB/s"_s);
        row(formatSpeed(1099511627776.0), u"1024.0 GB/s"_s);
    }
    void valuesAreFormatted()
    {
        QFETCH(QString, formatted);
        QTEST(formatted, "text");
    }

    void privateNetworksAreKnown()
    {
        for (const char *address :
             {"10.0.0.0", "10.255.255.255", "172.16.0.1", "172.31.255.255", "192.168.0.1", "169.254.9.9"})
            QVERIFY2(isPrivateAddress(QHostAddress(QLatin1String(address))), address);
        for (const char *address : {"9.255.255.255", "11.0.0.0", "172.15.255.255", "172.32.0.1",
                                    "192.169.0.1", "::ffff:10.0.0.1", "fe80::1", "127.0.0.1", ""})
            QVERIFY2(!isPrivateAddress(QHostAddress(QLatin1String(address))), address);
    }

    void bestAddressIsAnnounced_data()
    {
        addColumns<QList<NetworkAdapter>, QString>("adapters", "address");
        const auto row = [](const char *name, const QList<NetworkAdapter> &adapters, const QString &address) {
            QTest::newRow(name) << adapters << address;
        };
        const auto wlan = [](const QString &address) { return adapter(u"Wi-Fi"_s, {address}); };
        const auto wire = [](const QString &address) { return adapter(u"Ethernet 2"_s, {address}); };
        row("none", {}, u"127.0.0.1"_s);
        row("kind before wire", {wire(u"10.0.0.5"_s), wlan(u"192.168.1.9"_s)}, u"192.168.1.9"_s);
        row("wire within a kind", {wlan(u"192.168.1.9"_s), wire(u"192.168.56.1"_s)}, u"192.168.56.1"_s);
        row("Chinese wired name", {wlan(u"10.0.0.1"_s), adapter(u"以太网 2"_s, {u"10.0.0.2"_s})},
            u"10.0.0.2"_s);
        row("first of equals", {adapter(u"eth0"_s, {u"10.0.0.1"_s, u"10.0.0.2"_s}), wlan(u"10.0.0.3"_s)},
            u"10.0.0.1"_s);
        row("link-local last", {adapter(u"LAN"_s, {u"169.254.9.9"_s, u"172.16.0.1"_s})}, u"172.16.0.1"_s);
        row("not private, not IPv4", {adapter(u"eth0"_s, {u"172.32.0.1"_s, u"fe80::1"_s})}, u"127.0.0.1"_s);

        QList<NetworkAdapter> unusable(3, wire(u"192.168.1.1"_s));
        unusable[0].up = false;
        unusable[1].running = false;
        unusable[2].loopback = true;
        row("down, not running, loopback", unusable, u"127.0.0.1"_s);
    }
    void bestAddressIsAnnounced()
    {
        QFETCH(QList<NetworkAdapter>, adapters);
        QTEST(bestLocalAddress(adapters), "address");
    }
};

ZANDROVE_TEST(SupportTest)
#include "SupportTest.moc"
