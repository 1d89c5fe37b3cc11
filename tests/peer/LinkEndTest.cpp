#include "PeerTest.h"

#include "peer/Liveness.h"

#include <QRegularExpression>
#include <QTcpSocket>

using namespace std::chrono_literals;

namespace {

/// Asks `manager` as a peer would, and is let in.
bool joins(QTcpSocket &socket, NetworkManager &manager)
{
    QSignalSpy requested(&manager, &NetworkManager::connectionRequested);
    socket.connectToHost(QHostAddress::LocalHost, manager.serverPort());
    if (!socket.waitForConnected(1000))
        return false;
    socket.write(jsonFrame(MessageType::ConnectRequest, {{u"name"_s, u"Peer"_s}, {u"os"_s, u"OS"_s}}));
    if (!requested.wait())
        return false;
    manager.acceptConnection();
    return manager.isAccepted();
}

LinkEnvironment hurriedEnvironment()
{
    LinkEnvironment environment = silentEnvironment();
    environment.watchSecond = 2ms;
    return environment;
}

} // namespace

/// How the end of a link shows.
class LinkEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void silenceIsJudgedByWhatPasses_data()
    {
        addColumns<QString, QString>("script", "told");
        // "30s" thirty seconds, "30h" the same while this side holds the bytes back, "b" a heartbeat, "c"
        // bytes that are none
        QTest::newRow("short") << u"14s c 14s"_s << QString();
        QTest::newRow("silent") << u"b c 21s c"_s << u"15 20 answers"_s;
        QTest::newRow("lost") << u"b c 105s 20s"_s << u"15 20 25*105 110 115 lost"_s;
        QTest::newRow("held back") << u"b c 14s 200h 14s"_s << QString();
        QTest::newRow("reads again") << u"b c 200h 16s"_s << u"15"_s;
        QTest::newRow("never a heartbeat")
            << u"c 115s c 130s c"_s << u"15 20*115 answers 15*120 125 130 answers"_s;
    }

    void silenceIsJudgedByWhatPasses()
    {
        QFETCH(const QString, script);
        QFETCH(const QString, told);
        Liveness watch;
        QStringList said;
        bool lost = false;
        for (const QString &event : script.split(u' ')) {
            if (event == "b"_L1)
                watch.heartbeatCame();
            else if (event == "c"_L1 && watch.came())
                said.append(u"answers"_s);
            for (int left = event.chopped(1).toInt(); left > 0 && !lost; --left) {
                const auto verdict = watch.secondPassed(event.endsWith(u's'));
                lost = verdict == Liveness::Verdict::Lost;
                if (lost)
                    said.append(u"lost"_s);
                else if (verdict == Liveness::Verdict::Silent)
                    said.append(QString::number(watch.silentSeconds()));
            }
        }
        const QString text = said.join(u' ');
        const QRegularExpression expected(QRegularExpression::wildcardToRegularExpression(told));
        QVERIFY2(expected.match(text).hasMatch(), qPrintable(text));
    }

    void silentPeerIsGivenUp_data()
    {
        addColumns<bool, bool>("beats", "gateIsOpen");
        QTest::newRow("lost") << true << true;
        QTest::newRow("never sent a heartbeat") << false << true;
        QTest::newRow("nobody reads") << true << false;
    }

    void silentPeerIsGivenUp()
    {
        QFETCH(const bool, beats);
        QFETCH(const bool, gateIsOpen);
        NetworkManager manager(nullptr, hurriedEnvironment());
        QSignalSpy silent(&manager, &NetworkManager::linkSilent);
        QSignalSpy answers(&manager, &NetworkManager::linkAnswers);
        QSignalSpy gone(&manager, &NetworkManager::disconnected);
        QTcpSocket peer;
        QVERIFY(joins(peer, manager));
        if (beats)
            peer.write(frame(MessageType::Heartbeat));
        QVERIFY(silent.wait());
        QCOMPARE(silent.first().first().toInt(), Liveness::SilentAfter);
        peer.write(frame(MessageType::SessionEnd));
        QVERIFY(answers.wait());
        manager.setReadGate([gateIsOpen] { return gateIsOpen; });
        if (beats && gateIsOpen) {
            QVERIFY(gone.wait());
            QCOMPARE(manager.acceptedLink(), 0);
            QVERIFY(!manager.isConnected());
            QTRY_COMPARE(peer.state(), QAbstractSocket::UnconnectedState);
            QCOMPARE(gone.size(), 1);
        } else {
            QVERIFY(!gone.wait(500)); // twice the time
            QVERIFY(manager.isAccepted());
        }
    }

    void allThatHasComeIsToldBeforeTheEnd_data()
    {
        addColumns<QString, int>("end", "failures");
        QTest::newRow("goodbye") << u"goodbye"_s << 0;
        QTest::newRow("close") << u"close"_s << 0;
        QTest::newRow("reset") << u"reset"_s << 0;
        QTest::newRow("error") << u"error"_s << 1;
    }

    /// The gate holds back what has come, and the peer goes.
    void allThatHasComeIsToldBeforeTheEnd()
    {
        QFETCH(const QString, end);
        QFETCH(const int, failures);
        NetworkManager manager(nullptr, silentEnvironment());
        QTcpSocket peer;
        peer.setReadBufferSize(1); // what it leaves in the system makes an abort a reset
        QVERIFY(joins(peer, manager));
        manager.setReadGate([] { return false; });
        QStringList told;
        QList<quint64> links;
        const QSignalSpy failed(&manager, &NetworkManager::connectionFailed);
        connect(&manager, &NetworkManager::commandReceived, this, [&] { told.append(u"frame"_s); });
        connect(&manager, &NetworkManager::disconnected, this, [&] {
            told.append(u"end"_s);
            links.append(manager.acceptedLink());
        });
        peer.write(frame(MessageType::FileData, QByteArray(3 << 20, 'x')) + frame(MessageType::FileEnd));
        if (end == "goodbye"_L1)
            peer.write(frame(MessageType::Disconnect));
        QTRY_COMPARE(peer.bytesToWrite(), 0);
        QTest::qWait(50); // so that all of it has come before the end
        QVERIFY(told.isEmpty());
        if (end == "error"_L1)
            Q_EMIT manager.findChild<QTcpSocket *>()->errorOccurred(QAbstractSocket::NetworkError);
        else if (end == "reset"_L1)
            peer.abort();
        else
            peer.disconnectFromHost();
        QTRY_VERIFY(told.contains(u"end"_s));
        manager.disconnect();
        QTest::qWait(50);
        QCOMPARE(told, QStringList({u"frame"_s, u"frame"_s, u"end"_s}));
        QCOMPARE(links, QList<quint64>({0}));
        QCOMPARE(failed.size(), failures);
        QVERIFY(!manager.isConnected());
    }

    /// A peer whose cable was pulled takes no byte: hanging up must not wait for it.
    void peerThatTakesNothingHoldsNoEnd()
    {
        NetworkManager manager(nullptr, silentEnvironment());
        QTcpSocket peer;
        peer.setReadBufferSize(1);
        QVERIFY(joins(peer, manager));
        QSignalSpy gone(&manager, &NetworkManager::disconnected);
        manager.sendCommand(MessageType::FileData, QByteArray(64 << 20, 'x'));
        QTest::qWait(100);
        QVERIFY(*manager.pendingBytes() > 0);
        manager.disconnect();
        QVERIFY(gone.wait(4000));
        QCOMPARE(gone.size(), 1);
    }
};

ZANDROVE_TEST(LinkEndTest)
#include "LinkEndTest.moc"
