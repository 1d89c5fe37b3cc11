#include "PeerTest.h"

#include <QTcpServer>
#include <QTcpSocket>

using namespace std::chrono_literals;

namespace {

/// A PC at an address of its own.
class Guest
{
public:
    QTcpSocket socket;

    Guest(const NetworkManager &manager, int host)
    {
        socket.bind(QHostAddress(u"127.0.0.%1"_s.arg(host)));
        socket.connectToHost(QHostAddress::LocalHost, manager.serverPort());
        if (!socket.waitForConnected(1000))
            qFatal("cannot dial the copy under test");
    }
    void ask(const QString &name)
    {
        socket.write(jsonFrame(MessageType::ConnectRequest, {{u"name"_s, name}, {u"os"_s, u"OS"_s}}));
        socket.flush();
    }
    /// Whether the answer to its request was `type`.
    [[nodiscard]] bool hears(MessageType type)
    {
        return QTest::qWaitFor([this] { return socket.bytesAvailable() >= Protocol::HeaderSize; }) &&
               socket.read(Protocol::HeaderSize).at(7) == char(type);
    }
    [[nodiscard]] bool isCutOff() const { return socket.state() == QAbstractSocket::UnconnectedState; }
};

LinkEnvironment environmentWithSecond(std::chrono::milliseconds second)
{
    LinkEnvironment environment = silentEnvironment();
    environment.watchSecond = second;
    return environment;
}

} // namespace

/// Who may come in, and who has to wait.
class WaitingRoomTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<NetworkManager> m_manager;
    std::unique_ptr<QSignalSpy> m_requested;
    std::unique_ptr<QSignalSpy> m_disconnected;

    void makeManager(std::chrono::milliseconds second)
    {
        m_manager = std::make_unique<NetworkManager>(nullptr, environmentWithSecond(second));
        m_requested = std::make_unique<QSignalSpy>(m_manager.get(), &NetworkManager::connectionRequested);
        m_disconnected = std::make_unique<QSignalSpy>(m_manager.get(), &NetworkManager::disconnected);
    }

    /// The name of each open question and where it comes from.
    [[nodiscard]] QStringList asking() const
    {
        QStringList asking;
        for (const ConnectionQuestion &question : m_manager->openQuestions())
            asking.append(question.name + u'@' + question.ip.section(u'.', 3));
        return asking;
    }

private Q_SLOTS:
    void init() { makeManager(1000ms); }

    void acceptedLinkHoldsAndOnlyAYesDisplacesIt()
    {
        Guest first(*m_manager, 11);
        first.ask(u"First"_s);
        QVERIFY(m_requested->wait());
        m_manager->acceptConnection();
        QVERIFY(first.hears(MessageType::ConnectAccept));
        const quint64 link = m_manager->acceptedLink();

        Guest probe(*m_manager, 12);
        probe.socket.abort();
        Guest idle(*m_manager, 12);
        Guest second(*m_manager, 13);
        second.ask(u"Second"_s);
        QVERIFY(m_requested->wait());
        Guest third(*m_manager, 14);
        third.ask(u"Third"_s);
        QVERIFY(m_requested->wait());
        QCOMPARE(asking(), QStringList({u"Second@13"_s, u"Third@14"_s}));
        QCOMPARE(m_manager->acceptedLink(), link);
        QVERIFY(m_disconnected->isEmpty() && !first.isCutOff());

        m_manager->acceptConnection(m_manager->openQuestions().last().number);
        QCOMPARE(m_disconnected->size(), 1);
        QCOMPARE(m_manager->connectedPC().ip, u"127.0.0.14"_s);
        QVERIFY(third.hears(MessageType::ConnectAccept) && second.hears(MessageType::ConnectReject));
        QVERIFY(first.hears(MessageType::Disconnect));
        QTRY_VERIFY(first.isCutOff() && second.isCutOff() && idle.isCutOff());
        QVERIFY(asking().isEmpty());
        QCOMPARE(m_disconnected->size(), 1);
    }

    void runIsNotDisturbedButByItsOwnPeer()
    {
        Guest first(*m_manager, 11);
        first.ask(u"First"_s);
        QVERIFY(m_requested->wait());
        m_manager->acceptConnection();
        m_manager->setBusyCheck([] { return true; });
        Guest stranger(*m_manager, 12);
        stranger.ask(u"Stranger"_s);
        QVERIFY(stranger.hears(MessageType::ConnectReject));
        QCOMPARE(m_requested->size(), 1);
        Guest again(*m_manager, 11);
        again.ask(u"First"_s);
        QVERIFY(m_requested->wait());
        QCOMPARE(asking(), QStringList(u"First@11"_s));
    }

    void oneAddressCannotFlood()
    {
        Guest first(*m_manager, 11);
        first.ask(u"First"_s);
        QVERIFY(m_requested->wait());
        Guest other(*m_manager, 11);
        other.ask(u"Other"_s);
        QVERIFY(other.hears(MessageType::ConnectReject));
        Guest again(*m_manager, 11); // the same PC, whose first connection may be dead
        again.ask(u"First"_s);
        QTRY_VERIFY(first.isCutOff());
        QCOMPARE(asking(), QStringList(u"First@11"_s));
        m_manager->rejectConnection();
        QVERIFY(again.hears(MessageType::ConnectReject));

        std::vector<std::unique_ptr<Guest>> crowd;
        for (int i = 0; i < 40; ++i)
            crowd.push_back(std::make_unique<Guest>(*m_manager, 11));
        QTRY_COMPARE(
            std::count_if(crowd.cbegin(), crowd.cend(), [](const auto &guest) { return guest->isCutOff(); }),
            32);
        for (int host = 21; host < 28; ++host) {
            crowd.push_back(std::make_unique<Guest>(*m_manager, host));
            crowd.back()->ask(u"PC"_s);
            QVERIFY(m_requested->wait());
        }
        QCOMPARE(asking().size(), 7);
    }

    void threeRefusalsAreFollowedBySilence()
    {
        makeManager(10ms);
        for (int i = 0; i < 3; ++i) {
            Guest guest(*m_manager, 11);
            guest.ask(u"Insistent"_s);
            QVERIFY(m_requested->wait());
            m_manager->rejectConnection();
            QVERIFY(guest.hears(MessageType::ConnectReject));
        }
        Guest guest(*m_manager, 11);
        guest.ask(u"Insistent"_s);
        QVERIFY(guest.hears(MessageType::ConnectReject));
        QCOMPARE(m_requested->size(), 3);
        QTest::qWait(650); // sixty seconds
        Guest later(*m_manager, 11);
        later.ask(u"Insistent"_s);
        QVERIFY(m_requested->wait());
    }

    void whoeverDoesNotAskIsSentAway()
    {
        makeManager(10ms);
        const Guest idle(*m_manager, 11);
        Guest asker(*m_manager, 12);
        asker.ask(u"Asker"_s);
        QTRY_VERIFY(idle.isCutOff());
        QCOMPARE(asking(), QStringList(u"Asker@12"_s));
        QVERIFY(m_disconnected->isEmpty());
    }

    /// Both have chosen each other: the Old PC's dial goes on.
    void oneOfTwoDialsGoesOn()
    {
        for (const auto &[role, isGivenUp] :
             {std::pair(OldPC, false), std::pair(OldPC, true), std::pair(NewPC, false)}) {
            makeManager(1000ms);
            m_manager->setRole(role);
            QTcpServer peer;
            QVERIFY(peer.listen(QHostAddress(u"127.0.0.2"_s)));
            m_manager->handleDatagram(discoveryFrame(u"P"_s, {}, peer.serverPort(), u"1"_s, 1 - role),
                                      OtherMachine);
            m_manager->connectToPC(u"P"_s);
            QTRY_VERIFY(peer.hasPendingConnections());
            QTcpSocket *dialled = peer.nextPendingConnection();
            Guest guest(*m_manager, 2);
            guest.ask(u"P"_s);
            if (role == NewPC) {
                QVERIFY(guest.hears(MessageType::ConnectAccept) && m_manager->isAccepted());
                QTRY_COMPARE(dialled->state(), QAbstractSocket::UnconnectedState);
                QVERIFY(m_requested->isEmpty());
            } else {
                QVERIFY(!m_requested->wait(100));
                if (isGivenUp)
                    m_manager->disconnect();
                else
                    dialled->write(frame(MessageType::ConnectReject));
                QTRY_COMPARE(m_requested->size(), 1); // then it is asked after all
            }
        }
    }
};

ZANDROVE_TEST(WaitingRoomTest)
#include "WaitingRoomTest.moc"
