#include "PeerTest.h"

#include "peer/AddressRules.h"
#include "peer/CableModeHelper.h"

#include <QTcpServer>

namespace {

AdapterSource adapters(const QStringList &ips)
{
    return [ips] { return QList<NetworkAdapter>{adapter(u"Ethernet"_s, ips)}; };
}

constexpr int Hosts = 254;
/// A connect to it fails inside the call.
const QString Unreachable = u"255.255.255.255"_s;

/// A helper whose sweep reaches nobody, with what it says.
struct Sweep
{
    CableModeHelper helper;
    QSignalSpy found{&helper, &CableModeHelper::deviceFound};
    QSignalSpy progress{&helper, &CableModeHelper::scanProgress};
    QSignalSpy finished{&helper, &CableModeHelper::scanFinished};

    explicit Sweep(const QStringList &ips)
        : helper(adapters(ips))
    {
        helper.setRoute([](const QString &) { return Unreachable; });
    }
};

} // namespace

class CableModeHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addressRules()
    {
        QCOMPARE(CableModeHelper::normalizeIP(u"::ffff:169.254.1.2"_s), u"169.254.1.2"_s);
        QCOMPARE(CableModeHelper::normalizeIP(u" fe80::1%eth0 "_s), u"fe80::1"_s);
        QVERIFY(isSameSubnet(u"169.254.1.2"_s, u"169.254.200.3"_s)); // by two octets, others by three
        QVERIFY(isSameSubnet(u"10.1.2.3"_s, u"10.1.2.250"_s));
        QVERIFY(!isSameSubnet(u"192.168.1.2"_s, u"192.168.2.3"_s));
        QVERIFY(!isSameSubnet(u"10.1.2.3"_s, u"169.254.2.3"_s));
        QVERIFY(!isSameSubnet(u"peer"_s, {}));
        for (const QString &ip : {u"10.0.0.1"_s, u"172.16.0.1"_s, u"172.31.0.1"_s, u"192.168.1.1"_s})
            QVERIFY2(isPrivateIP(ip), qPrintable(ip));
        for (const QString &ip : {u"172.15.0.1"_s, u"172.32.0.1"_s, u"192.169.1.1"_s, u"169.254.1.2"_s})
            QVERIFY2(!isPrivateIP(ip), qPrintable(ip));
    }

    void sweepWindow_data()
    {
        const auto row =
            addColumns<QString, int, QString, QString, int>("ips", "layer", "first", "last", "subnets");
        row("own /24", u"169.254.10.5"_s, 0, u"169.254.10.1"_s, u"169.254.10.254"_s, 1);
        row("widened", u"169.254.10.5"_s, 2, u"169.254.8.1"_s, u"169.254.12.254"_s, 5);
        row("low edge", u"169.254.0.5"_s, 2, u"169.254.0.1"_s, u"169.254.2.254"_s, 3);
        row("high edge", u"169.254.255.5"_s, 2, u"169.254.253.1"_s, u"169.254.255.254"_s, 3);
        row("private never widens", u"10.1.2.3"_s, 5, u"10.1.2.1"_s, u"10.1.2.254"_s, 1);
        row("overlap once", u"169.254.1.5 169.254.2.5"_s, 1, u"169.254.0.1"_s, u"169.254.3.254"_s, 4);
        row("public", u"8.8.8.8 fe80::1"_s, 0, {}, {}, 0);
    }
    void sweepWindow()
    {
        QFETCH(QString, ips);
        QFETCH(int, layer);
        QFETCH(int, subnets);
        const QStringList addresses = ips.split(u' ');
        const QSet<QString> own(addresses.cbegin(), addresses.cend());
        const auto targets = scanTargets(adapters(addresses)(), own, layer);
        QTEST(targets.value(0), "first");
        QTEST(targets.value(targets.size() - 1), "last");
        QCOMPARE(targets.size(), subnets == 0 ? 0 : subnets * Hosts - addresses.size());
        QVERIFY(!own.intersects({targets.cbegin(), targets.cend()}));
    }

    void choosesTheOwnAddress()
    {
        QStringList ips;
        for (const QString &better : {u"8.8.8.8"_s, u"169.254.3.4"_s, u"192.168.137.1"_s, u"10.0.0.7"_s}) {
            ips.append(better);
            QCOMPARE(CableModeHelper(adapters(ips)).getCableIP(), ips.size() > 1 ? better : u"127.0.0.1"_s);
        }
    }

    void cableGoesFirst()
    {
        NetworkAdapter cable = adapter(u"cable"_s, {u"10.0.0.1"_s});
        cable.wired = true;
        CableModeHelper helper([&] { return QList{adapter(u"Wi-Fi"_s, {u"192.168.1.2"_s}), cable}; });
        helper.refreshLocalIPs();
        QCOMPARE(helper.cableFirst({u"192.168.1.7"_s, u"10.0.0.7"_s, u"8.8.8.8"_s, u"169.254.1.1"_s}),
                 (QStringList{u"169.254.1.1"_s, u"10.0.0.7"_s, u"192.168.1.7"_s, u"8.8.8.8"_s}));
    }

    void sweepWidensUntilSomethingIsFound()
    {
        QTcpServer listener;
        QVERIFY(listener.listen(QHostAddress::LocalHost));
        Sweep sweep({u"169.254.10.1"_s});
        sweep.helper.setTargetPort(listener.serverPort());
        sweep.helper.setRoute(
            [](const QString &ip) { return ip == "169.254.12.77"_L1 ? u"127.0.0.1"_s : u"127.0.0.2"_s; });
        sweep.helper.startDirectScan();
        QVERIFY(sweep.finished.wait(20'000));
        QCOMPARE(sweep.found, (QList<QVariantList>{{u"169.254.12.77"_s}}));
        QCOMPARE(sweep.progress.first(), (QVariantList{30, Hosts - 1 + 5 * Hosts}));
        QCOMPARE(sweep.progress.last(), (QVariantList{(1 + 3 + 5) * Hosts - 3, 5 * Hosts - 1}));

        sweep.helper.setRoute([](const QString &) { return Unreachable; });
        sweep.helper.startDirectScan();
        QVERIFY(sweep.finished.wait(60'000));
        QCOMPARE(sweep.progress.last(), (QVariantList{36 * Hosts - 6, 11 * Hosts - 1}));
        Sweep withoutAddresses({});
        withoutAddresses.helper.startDirectScan();
        QCOMPARE(sweep.finished + withoutAddresses.finished, (QList<QVariantList>{{true}, {false}, {false}}));
    }

    void sweepWaitsForAnOpenHandshakeAndStopsInSilence()
    {
        Sweep sweep({u"10.1.2.3"_s});
        const auto onProgress = [&sweep](int scanned) {
            if (scanned == 60)
                sweep.helper.setHandshakeOpen(true);
            else if (scanned == 120)
                sweep.helper.stopDirectScan();
        };
        connect(&sweep.helper, &CableModeHelper::scanProgress, &sweep.helper, onProgress);
        sweep.helper.startDirectScan();
        for (const int batches : {2, 4}) {
            QTRY_COMPARE(sweep.progress.size(), batches);
            for (int turn = 0; turn < 20; ++turn)
                QCoreApplication::processEvents();
            QCOMPARE(sweep.progress.size(), batches);
            sweep.helper.setHandshakeOpen(false);
        }
        QCOMPARE(sweep.finished.size(), 0);
    }
};

ZANDROVE_TEST(CableModeHelperTest)
#include "CableModeHelperTest.moc"
