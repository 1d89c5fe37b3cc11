#include "TestFiles.h"
#include "TestMain.h"
#include "core/common/Records.h"
#include "support/Json.h"
#include "support/ReportDocument.h"
#include "support/RunTexts.h"
#include "support/Utilities.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <limits>

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

    void reportHoldsHostileNamesAsText()
    {
        const QString hostile = u"<img src=x onerror=\"a()\">'&%1\u202e\r\n"_s;
        const ItemResult file{ItemKind::File, ItemOutcome::Failed, hostile, hostile, 1};
        RunSummary summary;
        summary.end = RunEnd::LinkLost;
        summary.ownName = summary.peerName = hostile;
        summary.notArrived = summary.different = summary.items = {file};
        summary.files.failed = summary.files.wasDifferent = 2;
        summary.fullVolumes = {{hostile, hostile, 1, 1}};
        summary.savedFolderPaths.insert(hostile, hostile);
        for (const int role : {OldPC, NewPC}) {
            summary.role = role;
            const QString page = QString::fromUtf8(reportAsHtml(summary));
            QVERIFY(page.contains(u"&lt;img src=x onerror=&quot;a()&quot;&gt;'&amp;%1"_s));
            QVERIFY(!page.contains(u"<img"_s) && !page.contains(u'\u202e') && !page.contains(u'\r'));
        }
        const QJsonObject json = QJsonDocument::fromJson(reportAsJson(summary)).object();
        QCOMPARE(json.value(u"peerName"_s).toString(), hostile);
    }

    void reportIsSavedBesideAndRenamed()
    {
        const QTemporaryDir scratch;
        const QString page = writeFile(scratch.filePath(u"r.html"_s), "older");
        QVERIFY(saveReport({}, page).isEmpty() && contentOf(page).startsWith("<!DOCTYPE html>"));
        const QString json = scratch.filePath(u"r.JSON"_s);
        QVERIFY(saveReport({}, json).isEmpty() && contentOf(json).startsWith("{"));
        QVERIFY(QDir(scratch.path()).mkdir(u"folder.html"_s));
        QVERIFY(saveReport({}, scratch.filePath(u"folder.html"_s)).contains(u"folder.html"_s));
        QVERIFY(!saveReport({}, scratch.filePath(u"missing/r.html"_s)).isEmpty());
        QCOMPARE(
            QDir(scratch.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 3);
    }

    void fullVolumesAreNamedAsTheirUserKnowsThem()
    {
        QCOMPARE(fullVolumeText({u"D:"_s, u"NEWBOX"_s, 12, 1024}),
                 u"no space left on drive D: of NEWBOX: 12 files, 1.0 KB did not fit"_s);
        QVERIFY(
            fullVolumeText({u"/home"_s, u"%1"_s, 1, 1}).startsWith(u"no space left on /home of %1: 1 "_s));
    }
};

ZANDROVE_TEST(SupportTest)
#include "SupportTest.moc"
