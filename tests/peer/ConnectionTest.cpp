#include "PeerTest.h"

#include "peer/Link.h"

#include <QTcpServer>
#include <QTcpSocket>

namespace {

constexpr int ChunkBytes = 524288 + 16;
using Signals = QList<QVariantList>;

/// One copy of the program, with what its signals said.
struct Copy
{
    QByteArray sent; ///< to everybody
    NetworkManager manager{nullptr, silentEnvironment([this](const QByteArray &bytes) { sent = bytes; })};
    QSignalSpy requested{&manager, &NetworkManager::connectionRequested};
    QSignalSpy connected{&manager, &NetworkManager::connected};
    QSignalSpy disconnected{&manager, &NetworkManager::disconnected};
    QSignalSpy failed{&manager, &NetworkManager::connectionFailed};
    QSignalSpy commands{&manager, &NetworkManager::commandReceived};

    explicit Copy(int role)
    {
        manager.setRole(role);
        manager.setVerifyCode(u"0427"_s);
    }
    /// Dials what listens at `port` of the other machine.
    void dial(quint16 port)
    {
        const QString id = QString::number(port);
        manager.handleDatagram(discoveryFrame(id, {}, port), OtherMachine);
        manager.connectToPC(id);
    }

    /// Dials `other` and returns whether its user was asked.
    bool asks(Copy &other)
    {
        dial(other.manager.serverPort());
        return other.requested.wait();
    }
    bool pairWith(Copy &other)
    {
        const bool asked = asks(other);
        other.manager.acceptConnection();
        return asked && connected.wait();
    }
    void sendChunks(int count)
    {
        for (int i = 0; i < count; ++i)
            manager.sendCommand(MessageType::FileData, QByteArray(ChunkBytes, char(i)));
    }

    [[nodiscard]] QByteArray payload(qsizetype i) const { return commands.at(i).at(1).toByteArray(); }
    /// Neither half of a pair.
    [[nodiscard]] bool isAlone() const { return !manager.isConnected() && !manager.isAccepted(); }
    [[nodiscard]] qsizetype links() const { return manager.findChildren<Link *>().size(); }
};

/// A peer that keeps to no rule.
struct Stranger
{
    QTcpSocket socket;

    explicit Stranger(const Copy &copy)
    {
        socket.connectToHost(QHostAddress::LocalHost, copy.manager.serverPort());
        if (!socket.waitForConnected(1000))
            qFatal("cannot dial the copy under test");
    }
    void say(const QByteArray &bytes)
    {
        socket.write(bytes);
        socket.flush();
    }
    void ask(const QString &name = u"Stranger"_s)
    {
        say(jsonFrame(MessageType::ConnectRequest, {{u"name"_s, name}, {u"os"_s, u"Other OS"_s}}));
    }
    [[nodiscard]] bool isCutOff() const { return socket.state() == QAbstractSocket::UnconnectedState; }
};

} // namespace

class ConnectionTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<Copy> m_newPC;
    std::unique_ptr<Copy> m_oldPC;

private Q_SLOTS:
    void init()
    {
        m_newPC = std::make_unique<Copy>(NewPC);
        m_oldPC = std::make_unique<Copy>(OldPC);
    }

    void pairsAfterARefusalAndCarriesMessagesBothWays()
    {
        m_oldPC->manager.setReadGate([] { return false; }); // which nothing passes before the end
        QVERIFY(m_oldPC->asks(*m_newPC));
        m_newPC->manager.rejectConnection();
        QTRY_COMPARE(m_oldPC->disconnected.size(), 1);
        QTRY_COMPARE(m_newPC->disconnected.size(), 1);
        m_oldPC->manager.setReadGate({});
        m_newPC->manager.startDiscovery();
        m_oldPC->manager.handleDatagram(m_newPC->sent, OtherMachine);
        m_oldPC->manager.connectByVerifyCode(u"0427"_s);
        QVERIFY(m_newPC->requested.wait());
        m_newPC->manager.acceptConnection();
        QVERIFY(m_oldPC->connected.wait());
        QVERIFY(m_newPC->manager.isAccepted() && m_oldPC->manager.isAccepted());
        QCOMPARE(m_oldPC->manager.connectedPC().senderIp, OtherMachine.toString());
        QCOMPARE(m_newPC->manager.connectedPC().id, m_newPC->requested.last().at(0).toString());

        m_oldPC->manager.sendCommand(MessageType::Heartbeat);
        m_oldPC->sendChunks(1);
        m_newPC->manager.sendCommand(MessageType::TransferPause);
        QTRY_COMPARE(m_newPC->commands.size(), 1);
        QCOMPARE(m_newPC->payload(0), QByteArray(ChunkBytes, '\0'));
        QTRY_COMPARE(m_oldPC->commands.size(), 1);
        QCOMPARE(m_oldPC->commands.at(0).at(0).value<MessageType>(), MessageType::TransferPause);

        m_oldPC->manager.connectToPC(u"nobody"_s);
        m_oldPC->manager.connectByVerifyCode(u"9999"_s);
        QCOMPARE(m_oldPC->failed, (Signals{{u"Connection rejected"_s},
                                           {u"PC not found"_s},
                                           {u"No device found with verification code: 9999"_s}}));
        QVERIFY(m_oldPC->manager.isAccepted());
    }

    void dialThatCannotSucceedFails()
    {
        QTcpServer silent; // hangs up instead of answering
        QVERIFY(silent.listen());
        connect(&silent, &QTcpServer::newConnection, this, [&] { silent.nextPendingConnection()->close(); });
        const QSignalSpy timeout(&m_oldPC->manager, &NetworkManager::connectionTimeout);
        for (const quint16 port : {quint16(1), silent.serverPort(), quint16(0)}) {
            m_oldPC->failed.clear();
            m_oldPC->dial(port);
            QTRY_COMPARE(m_oldPC->failed.size(), 1);
            QVERIFY(timeout.isEmpty() && m_oldPC->isAlone());
        }
    }

    void blackHoleTimesOut()
    {
        QTcpServer full;
        full.setListenBacklogSize(1);
        QVERIFY(full.listen(OtherMachine));
        full.pauseAccepting();
        std::vector<std::unique_ptr<QTcpSocket>> crowd;
        do {
            crowd.push_back(std::make_unique<QTcpSocket>());
            crowd.back()->connectToHost(OtherMachine, full.serverPort());
        } while (crowd.back()->waitForConnected(500) && crowd.size() < 20);
        if (crowd.size() == 20)
            QSKIP("no black hole here: a full backlog still takes connections");
        Stranger guest(*m_newPC);
        guest.ask();
        QVERIFY(m_newPC->requested.wait());
        m_newPC->manager.acceptConnection();
        QSignalSpy timeout(&m_oldPC->manager, &NetworkManager::connectionTimeout);
        m_oldPC->dial(full.serverPort());
        QVERIFY(timeout.wait(7000));
        QCOMPARE(m_oldPC->failed, (Signals{{u"Connection timeout"_s}}));
        // As long as that takes, a link has its first heartbeat.
        QTRY_COMPARE(guest.socket.bytesAvailable(), 2 * Protocol::HeaderSize);
        QCOMPARE(guest.socket.readAll().at(Protocol::HeaderSize + 7), char(MessageType::Heartbeat));
    }

    void onlyTheOneThatAsksIsLetIn()
    {
        Stranger first(*m_newPC);
        std::unique_ptr<Stranger> second;
        const auto onRequest = [&](const QString &name) {
            if (name == "second"_L1)
                return;
            second = std::make_unique<Stranger>(*m_newPC);
            QTRY_VERIFY(first.isCutOff()); // an event loop of its own, as a dialog has
            m_newPC->manager.acceptConnection();
            QVERIFY(m_newPC->isAlone());
            second->ask(u"second"_s);
            QVERIFY(m_newPC->requested.wait());
            // The code that emits for the first link still stands below, and so must that link.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCOMPARE(m_newPC->links(), 2);
        };
        connect(&m_newPC->manager, &NetworkManager::connectionRequested, &m_newPC->manager, onRequest);
        first.say(frame(MessageType::ConnectAccept) + frame(MessageType::TransferStart, "{}"));
        QVERIFY(m_newPC->commands.wait()); // handed on, accepted or not
        QVERIFY(m_newPC->isAlone());
        first.ask(u"first"_s);
        QTRY_COMPARE(m_newPC->requested, (Signals{{u"first"_s, u"0427"_s}, {u"second"_s, u"0427"_s}}));
        QTRY_COMPARE(m_newPC->links(), 1);
        m_newPC->manager.acceptConnection();
        QCOMPARE(m_newPC->manager.connectedPC().name, u"second"_s);
    }

    void unfinishedFrameOfAStrangerIsBounded()
    {
        Stranger stranger(*m_newPC);
        stranger.say(header(Protocol::Magic, 50, 64 << 20) + QByteArray(17 << 20, '\0'));
        QTRY_COMPARE_WITH_TIMEOUT(stranger.socket.bytesToWrite(), 0, 10'000);
        // What is still in flight is dropped with the rest, so ask until it gets through.
        for (int i = 0; i < 100 && !m_newPC->requested.wait(50); ++i)
            stranger.ask();
        QCOMPARE(m_newPC->requested.size(), 1);
        m_newPC->manager.acceptConnection();
        stranger.say(frame(MessageType::FileData, QByteArray(40 << 20, 'x')));
        QVERIFY(m_newPC->commands.wait(10'000));
        QCOMPARE(m_newPC->payload(0).size(), 40 << 20);
    }

    void lastFramesLeaveAtTheEndOfTheProgram()
    {
        QVERIFY(m_oldPC->pairWith(*m_newPC));
        m_oldPC->sendChunks(2);
        m_oldPC.reset();
        QTRY_COMPARE(m_newPC->disconnected.size(), 1);
        QCOMPARE(m_newPC->commands.size(), 2);
        QVERIFY(m_newPC->isAlone());
    }

    void closedGateHoldsBytesBackUntilResumedOrTheEnd()
    {
        QVERIFY(m_oldPC->pairWith(*m_newPC));
        bool mayRead = true;
        m_newPC->manager.setReadGate([&] { return mayRead; });
        connect(&m_newPC->manager, &NetworkManager::commandReceived, &m_newPC->manager,
                [&] { mayRead = false; });
        m_oldPC->sendChunks(40);
        QVERIFY(m_newPC->commands.wait());
        QVERIFY(!m_newPC->commands.wait(100));
        QCOMPARE(m_newPC->commands.size(), 1);

        m_oldPC->manager.disconnect();
        QVERIFY(m_oldPC->isAlone());
        Copy other(NewPC);
        QVERIFY(m_oldPC->pairWith(other));          // while the last frames leave
        for (int count = 2; count <= 25; ++count) { // the last 16 and more fit the socket's buffer
            mayRead = true;
            m_newPC->manager.resumeReading();
            QVERIFY(m_newPC->commands.wait());
            QVERIFY(m_newPC->commands.size() == count || count > 20);
        }
        QTRY_COMPARE(m_newPC->commands.size(), 40);
        QCOMPARE(m_newPC->payload(39), QByteArray(ChunkBytes, char(39)));
        QTRY_COMPARE(m_oldPC->links(), 1);
        QVERIFY(m_oldPC->manager.isAccepted() && m_oldPC->disconnected.isEmpty());
        m_oldPC->manager.disconnect();
        QTRY_COMPARE(m_oldPC->disconnected.size(), 1);
    }

    void slotMayDisconnectBetweenTwoFrames()
    {
        connect(&m_newPC->manager, &NetworkManager::commandReceived, &m_newPC->manager,
                &NetworkManager::disconnect);
        Stranger stranger(*m_newPC);
        stranger.say(frame(MessageType::SessionEnd) + frame(MessageType::SessionEnd));
        QTRY_COMPARE(m_newPC->disconnected.size(), 1);
        QCOMPARE(m_newPC->commands.size(), 1);
    }

    void countsWhatWaitsInTheSocket()
    {
        const auto pending = m_newPC->manager.pendingBytes();
        Stranger stranger(*m_newPC);
        stranger.socket.setReadBufferSize(1000);
        stranger.ask();
        QVERIFY(m_newPC->requested.wait());
        m_newPC->sendChunks(64);
        QVERIFY(*pending > 16 << 20);
        stranger.socket.setReadBufferSize(0);
        QTRY_COMPARE_WITH_TIMEOUT(pending->load(), 0, 10'000);
        m_newPC->sendChunks(1);
        QVERIFY(*pending > 0);
        m_newPC->manager.disconnect();
        QCOMPARE(pending->load(), 0);
    }

    void listensAgainOnceThePortIsFree()
    {
        auto first = std::make_unique<Copy>(NewPC);
        auto environment = silentEnvironment();
        environment.tcpPort = first->manager.serverPort();
        NetworkManager second(nullptr, environment);
        QCOMPARE(second.serverPort(), 0);
        first.reset();
        second.startDiscovery();
        QCOMPARE(second.serverPort(), environment.tcpPort);
    }
};

ZANDROVE_TEST(ConnectionTest)
#include "ConnectionTest.moc"
