#include "PeerTest.h"

#include "peer/CableModeHelper.h"

static const QHostAddress Sender(u"10.0.0.9"_s);

/// An Old PC, a New PC's broadcasts, and the table of peers.
class DiscoveryTest : public QObject
{
    Q_OBJECT

    QDateTime m_now = QDateTime::currentDateTime();
    std::unique_ptr<NetworkManager> m_manager;
    std::unique_ptr<QSignalSpy> m_discovered;
    std::unique_ptr<QSignalSpy> m_lost;

    void hear(const QByteArray &datagram, const QHostAddress &sender = Sender)
    {
        m_manager->handleDatagram(datagram, sender);
    }
    void scanFinds(const QString &ip) { Q_EMIT m_manager->findChild<CableModeHelper *>()->deviceFound(ip); }
    /// "id ip sender port code" of each.
    [[nodiscard]] QStringList table() const
    {
        QStringList rows;
        for (const PCInfo &pc : m_manager->discoveredPCs()) {
            rows.append(
                QStringList{pc.id, pc.ip, pc.senderIp, QString::number(pc.port), pc.verifyCode}.join(u' '));
        }
        return rows;
    }

private Q_SLOTS:
    void init()
    {
        auto environment = silentEnvironment();
        environment.now = [this] { return m_now; };
        m_manager = std::make_unique<NetworkManager>(nullptr, environment);
        m_discovered = std::make_unique<QSignalSpy>(m_manager.get(), &NetworkManager::pcDiscovered);
        m_lost = std::make_unique<QSignalSpy>(m_manager.get(), &NetworkManager::pcLost);
    }

    void announcesItselfToEveryTarget()
    {
        QStringList targets;
        QByteArrayList frames;
        auto environment = silentEnvironment();
        environment.adapters = [] {
            NetworkAdapter ethernet =
                adapter(u"Ethernet"_s, {u"192.168.1.9"_s, u"fe80::1"_s, u"169.254.7.8"_s});
            ethernet.addresses[0].broadcast = QHostAddress(u"192.168.1.127"_s);
            QList<NetworkAdapter> all(3, adapter(u"other"_s, {u"10.0.0.1"_s}));
            all[0].loopback = true;
            all[1].up = false;
            all[2] = ethernet;
            return all;
        };
        environment.sendDatagram = [&](const QByteArray &datagram, const QHostAddress &target, quint16) {
            targets.append(target.toString());
            frames.append(datagram);
        };
        NetworkManager manager(nullptr, environment);
        manager.setRole(NewPC);
        manager.setVerifyCode(u"0427"_s);
        manager.startDiscovery();

        const QStringList once = {u"255.255.255.255"_s, u"192.168.1.127"_s, u"192.168.1.255"_s,
                                  u"169.254.255.255"_s, u"169.254.7.255"_s};
        QCOMPARE(targets, once);
        QCOMPARE(frames, QByteArrayList(5, frames.first()));
        QCOMPARE(Protocol::readHeader(frames.first())->sequence, 1u);
        const auto said = *parseJsonObject(frames.first().mid(20));
        QCOMPARE(said, (QJsonObject{{u"id"_s, said["name"_L1]},
                                    {u"name"_s, said["name"_L1].toString()},
                                    {u"os"_s, said["os"_L1].toString()},
                                    {u"ip"_s, u"192.168.1.9"_s},
                                    {u"port"_s, manager.serverPort()},
                                    {u"role"_s, 1},
                                    {u"code"_s, u"0427"_s}}));

        // Five at once: the regular ones alone would take two seconds.
        QTRY_VERIFY_WITH_TIMEOUT(targets.size() >= 5 * once.size(), 1500);
    }

    void dropsWhatIsNoPeer()
    {
        const QByteArray good = discoveryFrame(u"pc"_s, u"10.0.0.9"_s);
        for (const QByteArray &datagram :
             {QByteArray(), good.first(19), QByteArray(good).replace(0, 1, "X"),
              QByteArray(good).replace(7, 1, "\x02"), // another type
              good.chopped(1), header(Protocol::Magic, 1, 0xFFFFFFEC) + good.mid(20),
              frame(MessageType::Discovery, "{\"id\":"), frame(MessageType::Discovery, "[1]"),
              frame(MessageType::Discovery, R"({"id":7,"name":"pc","role":1})"),
              frame(MessageType::Discovery, R"({"id":"pc","role":1})"),
              frame(MessageType::Discovery, R"({"id":"pc","name":"pc"})")}) { // no role is the own one
            hear(datagram);
            QVERIFY2(table().isEmpty(), datagram.toHex().constData());
        }
        for (const QString &own : {u"127.0.0.1"_s, u"::ffff:127.0.0.1"_s})
            hear(good, QHostAddress(own));
        QVERIFY(table().isEmpty() && m_discovered->isEmpty());
    }

    void listsWhatItHearsAndFinds()
    {
        hear(discoveryFrame(u"pc"_s, u"10.0.0.1"_s, 70000, u"1111"_s) + "trailing",
             QHostAddress(u"::ffff:10.0.0.9"_s));
        hear(discoveryFrame(u"pc"_s, u"10.0.0.2"_s, 52024, u"2222"_s));
        const QSignalSpy sameRole(m_manager.get(), &NetworkManager::sameRolePeer);
        hear(discoveryFrame(u"twin"_s, {}, 52024, u"1111"_s, OldPC));
        QCOMPARE(sameRole, (QList<QVariantList>{{u"twin"_s}}));
        hear(discoveryFrame(u"no port"_s, {}, 70000));
        scanFinds(u"10.0.0.3"_s);
        QCOMPARE(table(),
                 (QStringList{u"pc 10.0.0.9 10.0.0.9 52024 2222"_s, u"no port 10.0.0.9 10.0.0.9 0 0427"_s,
                              u"10.0.0.3 10.0.0.3 10.0.0.3 0 "_s}));
        QCOMPARE(m_discovered->size(), 3);
        QCOMPARE(m_manager->discoveredPCs().last().name, u"PC at 10.0.0.3"_s);
    }

    void slotOfALostPeerMayRefreshTheTable()
    {
        for (const QString &id : {u"a"_s, u"b"_s, u"c"_s})
            hear(discoveryFrame(id, {}));
        connect(m_manager.get(), &NetworkManager::pcLost, m_manager.get(), [this] {
            m_manager->restartBroadcast();
            hear(discoveryFrame(u"c"_s, {}));
        });
        m_now = m_now.addSecs(16);
        for (int i = 0; i < 3; ++i)
            m_manager->checkPCTimeouts();
        QCOMPARE(m_lost->size(), 1);
        QCOMPARE(m_lost->first().first().toString(), u"c"_s);
        QCOMPARE(table(), QStringList(u"c 10.0.0.9 10.0.0.9 52024 0427"_s));
    }
};

ZANDROVE_TEST(DiscoveryTest)
#include "DiscoveryTest.moc"
