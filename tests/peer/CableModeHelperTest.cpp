#include "PeerTest.h"

#include "peer/CableModeHelper.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

AdapterSource adapters(const QStringList &ips)
{
    return [ips] { return QList<NetworkAdapter>{adapter(u"Ethernet"_s, ips)}; };
}

constexpr int Hosts = 254;
/// A connect to it fails inside the call.
const QString Unreachable = u"255.255.255.255"_s;

} // namespace

class CableModeHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addressRules_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("normalized");
        QTest::addColumn<bool>("isPrivate");
        QTest::newRow("mapped") << u"::ffff:169.254.1.2"_s << u"169.254.1.2"_s << false;
        QTest::newRow("zone") << u"fe80::1%eth0"_s << u"fe80::1"_s << false;
        QTest::newRow("blanks") << u" 10.0.0.1 "_s << u"10.0.0.1"_s << true;
        QTest::newRow("172.15") << u"172.15.0.1"_s << u"172.15.0.1"_s << false;
        QTest::newRow("172.16") << u"172.16.0.1"_s << u"172.16.0.1"_s << true;
        QTest::newRow("172.31") << u"172.31.0.1"_s << u"172.31.0.1"_s << true;
        QTest::newRow("172.32") << u"172.32.0.1"_s << u"172.32.0.1"_s << false;
        QTest::newRow("192.168") << u"192.168.1.1"_s << u"192.168.1.1"_s << true;
        QTest::newRow("192.169") << u"192.169.1.1"_s << u"192.169.1.1"_s << false;
    }
    void addressRules()
    {
        QFETCH(QString, raw);
        QFETCH(QString, normalized);
        QCOMPARE(CableModeHelper::normalizeIP(raw), normalized);
        QTEST(CableModeHelper::isPrivateIP(normalized), "isPrivate");
    }

    void sameSubnet_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("same");
        QTest::newRow("link-local by two octets") << u"169.254.1.2"_s << u"169.254.200.3"_s << true;
        QTest::newRow("others by three") << u"192.168.1.2"_s << u"192.168.2.3"_s << false;
        QTest::newRow("three equal") << u"10.1.2.3"_s << u"10.1.2.250"_s << true;
        QTest::newRow("one link-local") << u"10.1.2.3"_s << u"169.254.2.3"_s << false;
        QTest::newRow("no addresses") << u"peer"_s << u""_s << false;
    }
    void sameSubnet()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QTEST(CableModeHelper::isSameSubnet(a, b), "same");
    }

    void sweepWindow_data()
    {
        QTest::addColumn<QStringList>("ips");
        QTest::addColumn<int>("layer");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<int>("subnets");
        QTest::newRow("own /24") << QStringList{u"169.254.10.5"_s} << 0 << u"169.254.10.1"_s
                                 << u"169.254.10.254"_s << 1;
        QTest::newRow("widened") << QStringList{u"169.254.10.5"_s} << 2 << u"169.254.8.1"_s
                                 << u"169.254.12.254"_s << 5;
        QTest::newRow("low edge") << QStringList{u"169.254.0.5"_s} << 2 << u"169.254.0.1"_s
                                  << u"169.254.2.254"_s << 3;
        QTest::newRow("high edge") << QStringList{u"169.254.255.5"_s} << 2 << u"169.254.253.1"_s
                                   << u"169.254.255.254"_s << 3;
        QTest::newRow("private never widens")
            << QStringList{u"10.1.2.3"_s} << 5 << u"10.1.2.1"_s << u"10.1.2.254"_s << 1;
        QTest::newRow("overlap once") << QStringList{u"169.254.1.5"_s, u"169.254.2.5"_s} << 1
                                      << u"169.254.0.1"_s << u"169.254.3.254"_s << 4;
        QTest::newRow("public") << QStringList{u"8.8.8.8"_s, u"fe80::1"_s} << 0 << QString() << QString()
                                << 0;
    }
    void sweepWindow()
    {
        QFETCH(QStringList, ips);
        QFETCH(int, layer);
        QFETCH(int, subnets);
        const QSet<QString> own(ips.cbegin(), ips.cend());
        const auto targets = CableModeHelper::scanTargets(adapters(ips)(), own, layer);
        QTEST(targets.value(0), "first");
        QTEST(targets.isEmpty() ? QString() : targets.last(), "last");
        QCOMPARE(targets.size(), subnets == 0 ? 0 : subnets * Hosts - ips.size());
        QVERIFY(
            std::none_of(ips.cbegin(), ips.cend(), [&](const QString &ip) { return targets.contains(ip); }));
    }

    void cableAddress_data()
    {
        QTest::addColumn<QStringList>("ips");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none") << QStringList{u"8.8.8.8"_s} << u"127.0.0.1"_s;
        QTest::newRow("link-local") << QStringList{u"8.8.8.8"_s, u"169.254.3.4"_s} << u"169.254.3.4"_s;
        QTest::newRow("sharing") << QStringList{u"169.254.3.4"_s, u"192.168.137.1"_s} << u"192.168.137.1"_s;
        QTest::newRow("private") << QStringList{u"169.254.3.4"_s, u"192.168.137.1"_s, u"10.0.0.7"_s}
                                 << u"10.0.0.7"_s;
    }
    void cableAddress()
    {
        QFETCH(QStringList, ips);
        const CableModeHelper helper(adapters(ips));
        QTEST(helper.getCableIP(), "expected");
    }

    void choosesTheAddressToDial_data()
    {
        QTest::addColumn<QString>("payload");
        QTest::addColumn<QString>("sender");
        QTest::addColumn<QString>("expected");
        QTest::newRow("sender near") << u"192.168.1.7"_s << u"192.168.1.8"_s << u"192.168.1.8"_s;
        QTest::newRow("payload near") << u"192.168.1.7"_s << u"10.0.0.8"_s << u"192.168.1.7"_s;
        QTest::newRow("none near") << u"10.0.0.7"_s << u"10.0.0.8"_s << u"10.0.0.8"_s;
        QTest::newRow("no sender") << u"10.0.0.7"_s << u""_s << u"10.0.0.7"_s;
        QTest::newRow("nothing") << u""_s << u""_s << u""_s;
        QTest::newRow("link-local, only payload answers")
            << u"169.254.1.1"_s << u"10.0.0.8"_s << u"169.254.1.1"_s;
        QTest::newRow("link-local, none answers") << u"169.254.1.2"_s << u"10.0.0.8"_s << u"10.0.0.8"_s;
    }
    void choosesTheAddressToDial()
    {
        QFETCH(QString, payload);
        QFETCH(QString, sender);
        QTcpServer listener;
        QVERIFY(listener.listen(QHostAddress::LocalHost));
        CableModeHelper helper(adapters({u"8.8.8.8"_s, u"192.168.1.2"_s}));
        helper.setTargetPort(listener.serverPort());
        helper.setRoute(
            [](const QString &ip) { return ip == "169.254.1.1"_L1 ? u"127.0.0.1"_s : Unreachable; });
        QTEST(helper.chooseBestIP(payload, sender), "expected");
        listener.close();
        QTEST(helper.chooseBestIP(payload, sender), "expected"); // what was probed is remembered
    }

    void sweepEndsAfterTheLayerThatFoundSomething()
    {
        QTcpServer listener;
        QVERIFY(listener.listen(QHostAddress::LocalHost));
        CableModeHelper helper(adapters({u"169.254.10.1"_s}));
        helper.setTargetPort(listener.serverPort());
        helper.setRoute(
            [](const QString &ip) { return ip == "169.254.12.77"_L1 ? u"127.0.0.1"_s : u"127.0.0.2"_s; });
        const QSignalSpy found(&helper, &CableModeHelper::deviceFound);
        const QSignalSpy progress(&helper, &CableModeHelper::scanProgress);
        QSignalSpy finished(&helper, &CableModeHelper::scanFinished);
        helper.startDirectScan();
        QVERIFY(finished.wait(20'000));
        QCOMPARE(found, (QList<QVariantList>{{u"169.254.12.77"_s}}));
        QCOMPARE(finished, (QList<QVariantList>{{true}}));
        QCOMPARE(progress.first(), (QVariantList{30, Hosts - 1 + 5 * Hosts}));
        QCOMPARE(progress.last(), (QVariantList{(1 + 3 + 5) * Hosts - 3, 5 * Hosts - 1}));
    }

    void sweepOfAnUnreachableNetworkWidensToTheEnd()
    {
        CableModeHelper helper(adapters({u"169.254.10.1"_s}));
        helper.setRoute([](const QString &) { return Unreachable; });
        const QSignalSpy progress(&helper, &CableModeHelper::scanProgress);
        QSignalSpy finished(&helper, &CableModeHelper::scanFinished);
        helper.startDirectScan();
        QVERIFY(finished.wait(60'000));
        QCOMPARE(finished, (QList<QVariantList>{{false}}));
        QCOMPARE(progress.last(), (QVariantList{36 * Hosts - 6, 11 * Hosts - 1}));
    }

    void sweepWaitsForAnOpenHandshake()
    {
        CableModeHelper helper(adapters({u"10.1.2.3"_s}));
        helper.setRoute([](const QString &) { return Unreachable; });
        connect(&helper, &CableModeHelper::scanProgress, &helper, [&helper](int scanned) {
            if (scanned == 60)
                helper.setHandshakeOpen(true);
        });
        const QSignalSpy progress(&helper, &CableModeHelper::scanProgress);
        QSignalSpy finished(&helper, &CableModeHelper::scanFinished);
        helper.startDirectScan();
        QTRY_COMPARE(progress.size(), 2);
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents();
        QCOMPARE(progress.size(), 2);
        helper.setHandshakeOpen(false);
        QVERIFY(finished.wait(20'000));
    }

    void stoppedSweepIsSilent()
    {
        CableModeHelper helper(adapters({u"10.1.2.3"_s}));
        helper.setRoute([](const QString &) { return Unreachable; });
        const QSignalSpy finished(&helper, &CableModeHelper::scanFinished);
        connect(&helper, &CableModeHelper::scanProgress, &helper, &CableModeHelper::stopDirectScan);
        helper.startDirectScan();
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents();
        QCOMPARE(finished.size(), 0);

        CableModeHelper withoutAddresses(adapters({}));
        const QSignalSpy finishedAtOnce(&withoutAddresses, &CableModeHelper::scanFinished);
        withoutAddresses.startDirectScan();
        QCOMPARE(finishedAtOnce, (QList<QVariantList>{{false}}));
    }
};

std::unique_ptr<QObject> makeCableModeHelperTest()
{
    return std::make_unique<CableModeHelperTest>();
}

#include "CableModeHelperTest.moc"
