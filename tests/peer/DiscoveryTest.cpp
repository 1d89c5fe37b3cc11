#include "PeerTest.h"

#include "peer/CableModeHelper.h"

#include <QNetworkDatagram>
#include <QSignalSpy>
#include <QTest>
#include <QUdpSocket>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

const QHostAddress Sender(u"10.0.0.9"_s);

/// An Old PC with a clock of its own.
class Listener
{
public:
    std::shared_ptr<QDateTime> clock = std::make_shared<QDateTime>(QDateTime::currentDateTime());
    NetworkManager manager{nullptr, [this] {
                               auto environment = testEnvironment();
                               environment.now = [this] { return *clock; };
                               return environment;
                           }()};
    QSignalSpy discovered{&manager, &NetworkManager::pcDiscovered};
    QSignalSpy lost{&manager, &NetworkManager::pcLost};

    void hear(const QByteArray &datagram) { manager.handleDatagram(datagram, Sender); }
    void scanFinds(const QString &ip) { Q_EMIT manager.findChild<CableModeHelper *>()->deviceFound(ip); }
    void pass(int seconds) { *clock = clock->addSecs(seconds); }
    void check(int times)
    {
        for (int i = 0; i < times; ++i)
            manager.checkPCTimeouts();
    }
    [[nodiscard]] PCInfo entry(qsizetype i) const { return manager.discoveredPCs().value(i); }
    [[nodiscard]] qsizetype count() const { return manager.discoveredPCs().size(); }
};

/// Whether what `speaker` sends on loopback arrives from the address it is bound to.
bool keepsItsAddress(QUdpSocket &speaker)
{
    QUdpSocket ear;
    if (!ear.bind(QHostAddress::LocalHost))
        return false;
    speaker.writeDatagram("x", QHostAddress::LocalHost, ear.localPort());
    return ear.waitForReadyRead(1000) && ear.receiveDatagram().senderAddress() == speaker.localAddress();
}

} // namespace

class DiscoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void announcesItselfToEveryTarget()
    {
        auto targets = std::make_shared<QStringList>();
        auto frames = std::make_shared<QList<QByteArray>>();
        auto environment = testEnvironment();
        environment.udpPort = 0;
        environment.adapters = [] {
            NetworkAdapter ethernet =
                adapter(u"Ethernet"_s, {u"192.168.1.9"_s, u"fe80::1"_s, u"169.254.7.8"_s});
            ethernet.addresses[0].broadcast = QHostAddress(u"192.168.1.127"_s);
            NetworkAdapter loopback = adapter(u"lo"_s, {u"127.0.0.1"_s});
            loopback.loopback = true;
            NetworkAdapter down = adapter(u"down"_s, {u"10.0.0.1"_s});
            down.up = false;
            return QList<NetworkAdapter>{loopback, down, ethernet};
        };
        environment.sendDatagram = [=](const QByteArray &datagram, const QHostAddress &target, quint16) {
            targets->append(target.toString());
            frames->append(datagram);
        };
        NetworkManager manager(nullptr, environment);
        manager.setRole(NewPC);
        manager.setVerifyCode(u"0427"_s);
        manager.startDiscovery();

        const QStringList once = {u"255.255.255.255"_s, u"192.168.1.127"_s, u"192.168.1.255"_s,
                                  u"169.254.255.255"_s, u"169.254.7.255"_s};
        QCOMPARE(*targets, once);
        QVERIFY(std::all_of(frames->cbegin(), frames->cend(),
                            [&](const QByteArray &f) { return f == frames->first(); }));
        QCOMPARE(Protocol::readHeader(frames->first())->sequence, 1u);
        const auto object = QJsonDocument::fromJson(frames->first().mid(20)).object();
        QCOMPARE(object.keys().join(u','), u"code,id,ip,name,os,port,role"_s);
        QCOMPARE(object["ip"_L1].toString(), u"192.168.1.9"_s);
        QCOMPARE(object["port"_L1].toInt(), int(manager.serverPort()));
        QCOMPARE(object["code"_L1].toString(), u"0427"_s);
        QCOMPARE(object["role"_L1].toInt(), 1);
        QCOMPARE(object["id"_L1].toString(), object["name"_L1].toString());

        // Five at once: the regular ones alone would take two seconds.
        QTRY_VERIFY_WITH_TIMEOUT(targets->size() >= 5 * once.size(), 1500);
        manager.stopDiscovery();
        manager.setMode(CableMode);
        manager.startDiscovery();
        QCOMPARE(QJsonDocument::fromJson(frames->last().mid(20))["ip"_L1].toString(), u"192.168.1.9"_s);
    }

    void dropsWhatIsNoPeer_data()
    {
        const QByteArray good = discoveryFrame(u"pc"_s, u"10.0.0.9"_s);
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<QString>("sender");
        const QString sender = Sender.toString();
        QTest::newRow("19 bytes") << good.first(19) << sender;
        QTest::newRow("nothing") << QByteArray() << sender;
        QTest::newRow("wrong magic") << QByteArray(good).replace(0, 1, "X") << sender;
        QTest::newRow("type 2") << QByteArray(good).replace(7, 1, "\x02") << sender;
        QTest::newRow("length beyond the datagram") << good.chopped(1) << sender;
        QTest::newRow("length that wraps") << header(Protocol::Magic, 1, 0xFFFFFFEC) + good.mid(20) << sender;
        QTest::newRow("no JSON") << frame(MessageType::Discovery, "{\"id\":") << sender;
        QTest::newRow("JSON array") << frame(MessageType::Discovery, "[1]") << sender;
        QTest::newRow("id of a wrong type")
            << frame(MessageType::Discovery, R"({"id":7,"name":"pc","role":1})") << sender;
        QTest::newRow("no name") << frame(MessageType::Discovery, R"({"id":"pc","role":1})") << sender;
        QTest::newRow("no role, which is the own one 0")
            << frame(MessageType::Discovery, R"({"id":"pc","name":"pc"})") << sender;
        QTest::newRow("own role") << discoveryFrame(u"pc"_s, u"10.0.0.9"_s, 52024, u"1"_s, OldPC) << sender;
        QTest::newRow("own address") << good << u"127.0.0.1"_s;
        QTest::newRow("own address, mapped") << good << u"::ffff:127.0.0.1"_s;
    }
    void dropsWhatIsNoPeer()
    {
        QFETCH(QByteArray, datagram);
        QFETCH(QString, sender);
        Listener old;
        old.manager.handleDatagram(datagram, QHostAddress(sender));
        QCOMPARE(old.count(), 0);
        QCOMPARE(old.discovered.size(), 0);
    }

    void listsAndRefreshesAPeer()
    {
        Listener old;
        old.manager.handleDatagram(discoveryFrame(u"pc"_s, u"10.0.0.1"_s, 70000, u"1111"_s) + "trailing",
                                   QHostAddress(u"::ffff:10.0.0.9"_s));
        QCOMPARE(old.discovered.size(), 1);
        QCOMPARE(old.entry(0).senderIp, u"10.0.0.9"_s);
        QCOMPARE(old.entry(0).port, 0);
        QVERIFY(old.entry(0).online);

        old.pass(3);
        old.manager.handleDatagram(discoveryFrame(u"pc"_s, u"10.0.0.2"_s, 52024, u"2222"_s),
                                   QHostAddress(u"10.0.0.77"_s));
        QCOMPARE(old.count(), 1);
        QCOMPARE(old.discovered.size(), 1);
        QCOMPARE(old.entry(0).verifyCode, u"2222"_s);
        QCOMPARE(old.entry(0).ip, u"10.0.0.2"_s);
        QCOMPARE(old.entry(0).port, 52024);
        QCOMPARE(old.entry(0).senderIp, u"10.0.0.9"_s);
        QCOMPARE(old.entry(0).lastSeen, *old.clock);
    }

    void sameAddressIsTheSamePeerUnlessEmpty()
    {
        Listener old;
        old.hear(discoveryFrame(u"a"_s, {}));
        old.hear(discoveryFrame(u"b"_s, {}));
        QCOMPARE(old.count(), 2);
        old.hear(discoveryFrame(u"c"_s, u"10.0.0.1"_s));
        old.pass(16);
        old.check(2);
        old.hear(discoveryFrame(u"d"_s, u"10.0.0.1"_s));
        QCOMPARE(old.count(), 3);
        QCOMPARE(old.entry(2).id, u"d"_s);
        QCOMPARE(old.discovered.size(), 3);
        old.pass(16);
        old.check(1); // a and b for the third time; d began anew
        QCOMPARE(old.lost, (QList<QVariantList>{{u"b"_s}, {u"a"_s}}));
        QCOMPARE(old.entry(0).id, u"d"_s);
    }

    void datagramUpgradesWhatTheSweepFound()
    {
        Listener old;
        old.scanFinds(u"10.0.0.1"_s);
        QCOMPARE(old.entry(0).name, u"PC at 10.0.0.1"_s);
        old.scanFinds(u"10.0.0.1"_s);
        QCOMPARE(old.discovered.size(), 1);

        old.hear(discoveryFrame(u"pc"_s, u"10.0.0.1"_s));
        QCOMPARE(old.count(), 1);
        QCOMPARE(old.discovered.size(), 2);
        QCOMPARE(old.discovered.last().first().value<PCInfo>().id, u"pc"_s);
        QCOMPARE(old.entry(0).senderIp, u"10.0.0.1"_s);

        old.hear(discoveryFrame(u"other"_s, u"10.0.0.2"_s));
        old.scanFinds(Sender.toString()); // the address its datagram came from
        QCOMPARE(old.count(), 2);
        old.pass(16);
        old.check(3);
        QCOMPARE(old.count(), 0);
    }

    void fullTableTakesRefreshesOnly()
    {
        Listener old;
        for (int i = 0; i < 513; ++i)
            old.hear(discoveryFrame(u"pc%1"_s.arg(i), {}));
        old.scanFinds(u"10.0.0.1"_s);
        QCOMPARE(old.count(), 512);
        QCOMPARE(old.discovered.size(), 512);
        old.hear(discoveryFrame(u"pc511"_s, {}, 52024, u"9999"_s));
        QCOMPARE(old.entry(511).verifyCode, u"9999"_s);
    }

    void silentPeerGoesOnTheThirdCheck()
    {
        Listener old;
        old.hear(discoveryFrame(u"pc"_s, u"10.0.0.1"_s));
        old.pass(15);
        old.check(3);
        old.pass(1);
        old.check(2);
        old.hear(discoveryFrame(u"pc"_s, u"10.0.0.1"_s));
        old.pass(16);
        old.check(2);
        QCOMPARE(old.count(), 1);
        old.check(1);
        QCOMPARE(old.count(), 0);
        QCOMPARE(old.lost.size(), 1);
    }

    void slotOfALostPeerMayRefreshTheTable()
    {
        Listener old;
        for (const QString &id : {u"a"_s, u"b"_s, u"c"_s})
            old.hear(discoveryFrame(id, {}));
        connect(&old.manager, &NetworkManager::pcLost, &old.manager, [&old] {
            old.manager.restartBroadcast();
            old.hear(discoveryFrame(u"c"_s, {}));
        });
        old.pass(16);
        old.check(3);
        QCOMPARE(old.lost.size(), 1);
        QCOMPARE(old.count(), 1);
        QCOMPARE(old.entry(0).id, u"c"_s);
    }

    void hearsDatagramsOnItsPort()
    {
        QUdpSocket speaker;
        if (!speaker.bind(OtherMachine) || !keepsItsAddress(speaker))
            QSKIP("datagrams here all come from the first loopback address");
        quint16 port = 0;
        {
            QUdpSocket finder;
            QVERIFY(finder.bind(QHostAddress::Any));
            port = finder.localPort();
        }
        auto environment = testEnvironment();
        environment.udpPort = port;
        NetworkManager manager(nullptr, environment);
        QSignalSpy discovered(&manager, &NetworkManager::pcDiscovered);
        speaker.writeDatagram("noise", QHostAddress::LocalHost, port);
        speaker.writeDatagram(discoveryFrame(u"pc"_s, u"10.0.0.1"_s), QHostAddress::LocalHost, port);
        QVERIFY(discovered.wait());
        QCOMPARE(manager.discoveredPCs().value(0).senderIp, OtherMachine.toString());
    }
};

std::unique_ptr<QObject> makeDiscoveryTest()
{
    return std::make_unique<DiscoveryTest>();
}

#include "DiscoveryTest.moc"
