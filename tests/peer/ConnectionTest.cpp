#include "PeerTest.h"

#include "peer/Link.h"
#include "support/Utilities.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <future>

namespace {

constexpr int ChunkBytes = 524288 + 16;
using Signals = QList<QVariantList>;

/// One copy of the program, with what its signals said.
class Copy
{
public:
    QByteArrayList sent; ///< to everybody
    NetworkManager manager{nullptr,
                           silentEnvironment([this](const QByteArray &bytes) { sent.append(bytes); })};
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
        if (!asks(other))
            return false;
        other.manager.acceptConnection();
        return connected.wait();
    }

    void sendChunks(int count)
    {
        for (int i = 0; i < count; ++i)
            manager.sendCommand(MessageType::FileData, QByteArray(ChunkBytes, char(i)));
    }

    [[nodiscard]] MessageType type(qsizetype i) const { return commands.at(i).at(0).value<MessageType>(); }
    [[nodiscard]] QByteArray payload(qsizetype i) const { return commands.at(i).at(1).toByteArray(); }
    /// Neither half of a pair.
    [[nodiscard]] bool isAlone() const { return !manager.isConnected() && !manager.isAccepted(); }
    [[nodiscard]] qsizetype links() const
    {
        return manager.findChildren<Link *>(Qt::FindDirectChildrenOnly).size();
    }
};

/// A peer that keeps to no rule.
class Stranger
{
public:
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

    /// Makes the Old PC's link to the New PC.
    bool pair() { return m_oldPC->pairWith(*m_newPC); }

private Q_SLOTS:
    void init()
    {
        m_newPC = std::make_unique<Copy>(NewPC);
        m_oldPC = std::make_unique<Copy>(OldPC);
    }

    void pairsAfterARefusalAndCarriesMessagesBothWays()
    {
        QVERIFY(m_oldPC->asks(*m_newPC));
        m_newPC->manager.rejectConnection();
        QTRY_COMPARE(m_oldPC->disconnected.size(), 1);
        QCOMPARE(m_newPC->disconnected.size(), 0); // there was no link
        m_newPC->manager.startDiscovery();
        m_oldPC->manager.handleDatagram(m_newPC->sent.first(), OtherMachine);
        m_oldPC->manager.connectByVerifyCode(u"0427"_s);
        QVERIFY(m_newPC->requested.wait());
        m_newPC->manager.acceptConnection();
        QVERIFY(m_oldPC->connected.wait());
        QVERIFY(m_newPC->manager.isAccepted() && m_oldPC->manager.isAccepted());
        QCOMPARE(m_oldPC->manager.connectedPC().senderIp, OtherMachine.toString());
        QCOMPARE(m_newPC->manager.connectedPC().id, m_newPC->requested.last().at(0).toString());
        QCOMPARE(m_newPC->manager.connectedPC().os, getOSVersion());

        m_oldPC->manager.sendCommand(MessageType::Heartbeat);
        m_oldPC->sendChunks(1);
        m_newPC->manager.sendCommand(MessageType::TransferPause);
        QTRY_COMPARE(m_newPC->commands.size(), 1);
        QCOMPARE(m_newPC->payload(0), QByteArray(ChunkBytes, '\0'));
        QTRY_COMPARE(m_oldPC->commands.size(), 1);
        QCOMPARE(m_oldPC->type(0), MessageType::TransferPause);

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
        connect(&silent, &QTcpServer::newConnection, &silent,
                [&silent] { silent.nextPendingConnection()->close(); });
        const QSignalSpy timeout(&m_oldPC->manager, &NetworkManager::connectionTimeout);
        for (const quint16 port : {quint16(1), silent.serverPort(), quint16(0)}) {
            m_oldPC->failed.clear();
            m_oldPC->dial(port);
            QTRY_COMPARE(m_oldPC->failed.size(), 1);
            QVERIFY(timeout.isEmpty() && m_oldPC->isAlone());
        }
    }

    void dialsOneAddressAfterTheOther()
    {
        QTcpServer listener;
        const QHostAddress there(u"127.0.0.3"_s);
        QVERIFY(listener.listen(there));
        for (const QHostAddress &sender : {there, OtherMachine})
            m_oldPC->manager.handleDatagram(discoveryFrame(u"pc"_s, {}, listener.serverPort()), sender);
        QCOMPARE(m_oldPC->manager.discoveredPCs().first().ip, OtherMachine.toString());
        QSignalSpy reached(&m_oldPC->manager, &NetworkManager::waitingForAnswer);
        m_oldPC->manager.connectToPC({}, m_oldPC->manager.discoveredPCs().first().key);
        QVERIFY(reached.wait());
        QCOMPARE(m_oldPC->failed.size(), 0);
        m_oldPC->manager.connectToAddress(OtherMachine.toString());
        QTRY_COMPARE(m_oldPC->failed.size(), 1);
        m_oldPC->manager.connectToAddress(there.toString());
        QVERIFY(reached.wait());
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
        Stranger asking(*m_newPC);
        asking.say(frame(MessageType::TransferStart, "{}") + frame(MessageType::ConnectAccept));
        asking.ask();
        asking.say(header(Protocol::Magic, 50, 1000)); // the rest never comes, and hurts nobody
        QVERIFY(m_newPC->requested.wait());
        QCOMPARE(m_newPC->requested, (Signals{{u"Stranger"_s, u"0427"_s}}));
        asking.ask(u"Somebody else"_s);
        asking.socket.disconnectFromHost();
        QTRY_VERIFY(m_newPC->manager.openQuestions().isEmpty());
        m_newPC->manager.acceptConnection();
        QVERIFY(m_newPC->isAlone() && m_newPC->commands.isEmpty() && m_newPC->disconnected.isEmpty());
        QCOMPARE(m_newPC->requested.size(), 1);

        Stranger quiet(*m_newPC);
        quiet.ask(u"Quiet"_s);
        QVERIFY(m_newPC->requested.wait());
        m_newPC->manager.acceptConnection(1); // the question that has ended
        QVERIFY(m_newPC->isAlone());
        m_newPC->manager.acceptConnection();
        QCOMPARE(m_newPC->manager.connectedPC().name, u"Quiet"_s);
        quiet.ask();
        quiet.say(frame(MessageType::Disconnect));
        QTRY_COMPARE(m_newPC->disconnected.size(), 1);
        m_newPC->manager.acceptConnection();
        QVERIFY(m_newPC->isAlone());
    }

    void unfinishedFrameOfAStrangerIsBounded()
    {
        Stranger stranger(*m_newPC);
        stranger.say(header(Protocol::Magic, 50, 64 << 20) + QByteArray(17 << 20, '\0'));
        QTRY_COMPARE_WITH_TIMEOUT(stranger.socket.bytesToWrite(), 0, 10'000);
        // What is still in flight is dropped with the rest, so ask until it gets through.
        QTRY_VERIFY((stranger.ask(), !m_newPC->requested.isEmpty()));
        m_newPC->manager.acceptConnection();
        stranger.say(frame(MessageType::FileData, QByteArray(40 << 20, 'x')));
        QVERIFY(m_newPC->commands.wait(10'000));
        QCOMPARE(m_newPC->payload(0).size(), 40 << 20);
    }

    /// More waits than the system takes at once, and the peer reads slowly and speaks on.
    void lastFramesLeaveAtTheEndOfTheProgram()
    {
        std::promise<quint16> port;
        auto peer = std::async(std::launch::async, [&port] {
            QTcpServer server;
            server.listen(OtherMachine);
            port.set_value(server.serverPort());
            server.waitForNewConnection(5000);
            QTcpSocket *socket = server.nextPendingConnection();
            QByteArray heard;
            for (auto reply = MessageType::ConnectAccept; socket && socket->waitForReadyRead(2000);
                 reply = MessageType::Heartbeat) {
                socket->setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, 1 << 16);
                heard += socket->readAll();
                socket->write(frame(reply));
                socket->flush();
            }
            return heard;
        });
        m_oldPC->dial(port.get_future().get());
        QVERIFY(m_oldPC->connected.wait());
        m_oldPC->sendChunks(12);
        QElapsedTimer time;
        time.start();
        m_oldPC.reset();
        const bool inTime = time.elapsed() < 190; // a farewell has 200 milliseconds
        const QByteArray last = peer.get().right(Protocol::HeaderSize);
        QVERIFY(!inTime || last.startsWith(header(Protocol::Magic, 19, 0).left(8)));
    }

    void lastFramesLeaveWhileTheNextLinkIsMade()
    {
        QVERIFY(pair());
        m_oldPC->sendChunks(40);
        m_oldPC->manager.disconnect();
        QVERIFY(m_oldPC->isAlone());
        Copy other(NewPC);
        QVERIFY(m_oldPC->pairWith(other));
        QTRY_VERIFY_WITH_TIMEOUT(!m_newPC->disconnected.isEmpty(), 10'000);
        QCOMPARE(m_newPC->commands.size(), 40);
        QTRY_COMPARE(m_oldPC->links(), 1);
        QVERIFY(m_oldPC->manager.isAccepted());
        QCOMPARE(m_oldPC->disconnected.size(), 0); // the one before is nobody's any more
        m_oldPC->manager.disconnect();
        QTRY_COMPARE(m_oldPC->disconnected.size(), 1);
    }

    void closedGateHoldsBytesBackUntilResumedOrTheEnd()
    {
        QVERIFY(pair());
        bool mayRead = true;
        m_newPC->manager.setReadGate([&] { return mayRead; });
        connect(&m_newPC->manager, &NetworkManager::commandReceived, &m_newPC->manager,
                [&] { mayRead = false; });
        m_oldPC->sendChunks(40);
        QVERIFY(m_newPC->commands.wait());
        QVERIFY(!m_newPC->commands.wait(100));
        QCOMPARE(m_newPC->commands.size(), 1);
        mayRead = true;
        m_newPC->manager.resumeReading();
        m_newPC->manager.resumeReading();
        QVERIFY(m_newPC->commands.wait());
        QCOMPARE(m_newPC->commands.size(), 2);

        m_oldPC->manager.disconnect();
        while (m_newPC->commands.size() < 25) { // the last 16 and more fit the socket's buffer
            mayRead = true;
            m_newPC->manager.resumeReading();
            QVERIFY(m_newPC->commands.wait());
        }
        QTRY_COMPARE(m_newPC->commands.size(), 40);
        QCOMPARE(m_newPC->payload(39), QByteArray(ChunkBytes, char(39)));
    }

    void slotMayDisconnectBetweenTwoFrames()
    {
        connect(&m_newPC->manager, &NetworkManager::commandReceived, &m_newPC->manager,
                &NetworkManager::disconnect);
        Stranger stranger(*m_newPC);
        stranger.ask();
        QVERIFY(m_newPC->requested.wait());
        m_newPC->manager.acceptConnection();
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
        m_newPC->manager.acceptConnection();
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
