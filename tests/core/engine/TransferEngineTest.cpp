#include "core/engine/TransferEngine.h"
#include "TestMain.h"
#include "peer/NetworkManager.h"
#include "peer/Protocol.h"
#include "pipeline/MigrationManager.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Protocol::MessageType;

namespace {

/// One PC: a whole engine on free ports, whose broadcasts reach nobody but the test.
struct Pc
{
    explicit Pc(int role)
        : engine(nullptr, environment())
    {
        engine.setRole(role);
        engine.startDiscovery();
        QObject::connect(&engine, &TransferEngine::connectionRequested, &engine,
                         [this] { engine.acceptConnection(engine.verifyCode()); });
    }

    LinkEnvironment environment()
    {
        LinkEnvironment env;
        env.tcpPort = 0;
        env.udpPort = 0;
        env.adapters = [] { return QList<NetworkAdapter>(); };
        env.sendDatagram = [this](const QByteArray &datagram, const QHostAddress &, quint16) {
            broadcast = datagram;
        };
        return env;
    }

    NetworkManager &link() { return *engine.findChild<NetworkManager *>(); }

    /// Lets this PC hear `other`, from a loopback address that is not its own.
    bool hears(Pc &other)
    {
        if (!QTest::qWaitFor([&other] { return !other.broadcast.isEmpty(); }))
            return false;
        link().handleDatagram(other.broadcast, QHostAddress(u"127.0.0.2"_s));
        return !engine.discoveredPCs().isEmpty();
    }

    QByteArray broadcast;
    TransferEngine engine;
};

/// Every file below `path` with its content.
QMap<QString, QByteArray> tree(const QString &path)
{
    QMap<QString, QByteArray> files;
    QDirIterator entries(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        if (file.open(QIODevice::ReadOnly))
            files.insert(QDir(path).relativeFilePath(file.fileName()), file.readAll());
    }
    return files;
}

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray frame(MessageType type, const QByteArray &payload = {})
{
    return Protocol::buildFrame(type, payload, 1);
}

} // namespace

/// Two whole engines in one process, over real sockets and real files.
class TransferEngineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_disk = std::make_unique<QTemporaryDir>();
        // A name that nobody has: the downloads may be those of whoever runs the tests.
        const QString name = u"Photos "_s + QUuid::createUuid().toString(QUuid::WithoutBraces);
        m_photos = m_disk->filePath(name);
        m_old = std::make_unique<Pc>(OldPC);
        m_new = std::make_unique<Pc>(NewPC);
        m_received = m_new->engine.destinationRoot() + u'/' + name;
    }

    void cleanup()
    {
        m_old.reset();
        m_new.reset();
        QDir(m_received).removeRecursively();
    }

    void wrongCodesAreRefused()
    {
        QSignalSpy failed(&m_old->engine, &TransferEngine::connectionFailed);
        m_old->engine.connectByCode(u"12345"_s);
        QCOMPARE(failed.takeFirst().first().toString(), u"No PC found with verification code: 12345"_s);
        m_old->engine.acceptConnection(m_old->engine.verifyCode() + u' ');
        QCOMPARE(failed.takeFirst().first().toString(), u"Invalid verification code"_s);
        const QString code = m_old->engine.verifyCode();
        QCOMPARE(code.size(), 4);
        QVERIFY(code.toInt() >= 0);
    }

    void failedDialLeavesNoPeerBehind()
    {
        QVERIFY(m_old->hears(*m_new));
        const PCInfo peer = m_old->engine.discoveredPCs().first();
        QSignalSpy failed(&m_old->engine, &TransferEngine::connectionFailed);
        m_new.reset();
        m_old->engine.connectToPC(peer);
        QVERIFY(!failed.isEmpty() || failed.wait());
        QVERIFY(!m_old->engine.isConnected());
    }

    void transferNeedsAPeerAndASelection()
    {
        QSignalSpy failed(&m_old->engine, &TransferEngine::transferFailed);
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
        QVERIFY(pair());
        m_old->engine.setSelectedPaths({});
        m_old->engine.startTransfer();
        QCOMPARE(failed.size(), 2);
        QCOMPARE(failed.first().first().toString(),
                 u"Cannot start transfer. Check connection and selection."_s);
    }

    void foldersCrossTwiceOnOneLink()
    {
        for (int i = 0; i < 25; ++i)
            write(m_photos + u"/%1/ü %1.jpg"_s.arg(i), QByteArray(i * 1000, char(i)));
        write(m_photos + u"/big"_s, QByteArray(3 * 1024 * 1024 + 1, 'b'));
        QVERIFY(pair());
        QSignalSpy sent(&m_old->engine, &TransferEngine::transferCompleted);
        QSignalSpy arrived(&m_new->engine, &TransferEngine::transferCompleted);
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
        QVERIFY(arrived.wait());
        QTRY_COMPARE(sent.size(), 1);
        const auto report = arrived.first().first().value<MigrationReport>();
        QCOMPARE(report.filesSuccess, 26);
        QCOMPARE(report.totalBytes, sent.first().first().value<MigrationReport>().totalBytes);
        QCOMPARE(tree(received()), tree(m_photos));

        // Once more, with one file that is new: the rest is there and stays as it is.
        QSignalSpy restarted(&m_new->engine, &TransferEngine::newTransferStarted);
        write(m_photos + u"/new"_s, "new");
        m_old->engine.notifyPeerReadyForNew();
        m_old->engine.resetTransfer();
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
        QVERIFY(arrived.wait());
        QCOMPARE(restarted.size(), 1);
        QCOMPARE(arrived.last().first().value<MigrationReport>().filesSkipped, 26);
        QCOMPARE(tree(received()), tree(m_photos));
    }

    void cancelLeavesBothSidesReady_data()
    {
        addColumns<bool>("byOldPC");
        QTest::newRow("by the Old PC") << true;
        QTest::newRow("by the New PC") << false;
    }
    void cancelLeavesBothSidesReady()
    {
        QFETCH(bool, byOldPC);
        write(m_photos + u"/big"_s, QByteArray(200 * 1024 * 1024, 'b'));
        QVERIFY(pair());
        TransferEngine &canceller = byOldPC ? m_old->engine : m_new->engine;
        TransferEngine &other = byOldPC ? m_new->engine : m_old->engine;
        QSignalSpy told(&other, &TransferEngine::peerCancelled);
        QSignalSpy progress(&m_new->engine, &TransferEngine::transferProgressChanged);
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
        QVERIFY(progress.wait());
        canceller.cancelTransfer();
        QVERIFY(told.wait());
        QTRY_VERIFY(tree(received()).isEmpty());

        QSignalSpy arrived(&m_new->engine, &TransferEngine::transferCompleted);
        QSignalSpy sent(&m_old->engine, &TransferEngine::transferCompleted);
        write(m_photos + u"/big"_s, "small now");
        if (!byOldPC)
            m_new->engine.startReceiving();
        m_old->engine.startTransfer();
        QVERIFY(arrived.wait());
        QTRY_COMPARE(sent.size(), 1);
        QCOMPARE(tree(received()), tree(m_photos));
    }

    void pauseCanBeEndedFromTheOtherSide()
    {
        write(m_photos + u"/big"_s, QByteArray(100 * 1024 * 1024, 'b'));
        QVERIFY(pair());
        QSignalSpy paused(&m_new->engine, &TransferEngine::pausedByPeer);
        QSignalSpy resumed(&m_old->engine, &TransferEngine::resumedByPeer);
        QSignalSpy arrived(&m_new->engine, &TransferEngine::transferCompleted);
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
        m_old->engine.pauseTransfer(); // before its list has begun
        QVERIFY(paused.wait());
        QVERIFY(!arrived.wait(500));
        m_new->engine.resumeTransfer();
        QVERIFY(resumed.wait());
        QVERIFY(arrived.wait());
        QVERIFY(tree(received()) == tree(m_photos));
    }

    void vanishedPeerCostsTheRunAndNoMore()
    {
        write(m_photos + u"/big"_s, QByteArray(100 * 1024 * 1024, 'b'));
        QVERIFY(pair());
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        QSignalSpy progress(&m_new->engine, &TransferEngine::transferProgressChanged);
        QSignalSpy gone(&m_new->engine, &TransferEngine::disconnected);
        m_old->engine.startTransfer();
        QVERIFY(progress.wait());
        m_old->link().findChild<QTcpSocket *>()->abort(); // no word of farewell
        QVERIFY(gone.wait());
        m_new->engine.resetForNewConnection();
        QTRY_VERIFY(tree(received()).isEmpty());

        m_old = std::make_unique<Pc>(OldPC);
        QVERIFY(pair());
        QSignalSpy arrived(&m_new->engine, &TransferEngine::transferCompleted);
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
        QVERIFY(arrived.wait());
        QVERIFY(tree(received()) == tree(m_photos));
    }

    void brokenRunDoesNotGoOnWithALaterPeer()
    {
        for (int i = 0; i < 40; ++i)
            write(m_photos + u"/%1"_s.arg(i), QByteArray(2 * 1024 * 1024, char(i)));
        QVERIFY(pair());
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        QSignalSpy progress(&m_new->engine, &TransferEngine::transferProgressChanged);
        QSignalSpy sent(&m_old->engine, &TransferEngine::transferCompleted);
        QSignalSpy gone(&m_new->engine, &TransferEngine::disconnected);
        m_old->engine.startTransfer();
        QVERIFY(progress.wait());
        m_old->engine.pauseTransfer();
        m_old->link().findChild<QTcpSocket *>()->abort();
        QVERIFY(gone.wait());
        m_new->engine.resetForNewConnection();
        QVERIFY(pair());
        m_new->engine.startReceiving();
        QSignalSpy heard(&m_new->link(), &NetworkManager::commandReceived);
        m_old->engine.resumeTransfer();
        QVERIFY(!sent.wait(700));
        QCOMPARE(heard.size(), 0);

        m_old->engine.resetForNewConnection(); // and a run of its own begins from the first file
        QSignalSpy arrived(&m_new->engine, &TransferEngine::transferCompleted);
        m_old->engine.startTransfer();
        QVERIFY(arrived.wait());
        QTRY_COMPARE(sent.size(), 1);
        QVERIFY(tree(received()) == tree(m_photos));
    }

    void strangerCanNeitherWriteNorEndTheSession()
    {
        QSignalSpy ended(&m_new->engine, &TransferEngine::sessionEndReceived);
        QSignalSpy restarted(&m_new->engine, &TransferEngine::newTransferStarted);
        m_new->engine.startReceiving();
        QTcpSocket stranger;
        stranger.connectToHost(u"127.0.0.1"_s, m_new->link().serverPort());
        QVERIFY(stranger.waitForConnected());
        stranger.write(frame(MessageType::TransferStart, R"({"fileCount":1,"totalSize":0})"));
        const QByteArray path = QFileInfo(m_received).fileName().toUtf8() + "/x";
        stranger.write(
            frame(MessageType::FileHeader, R"({"taskId":0,"fileSize":0,"relativePath":")" + path + "\"}"));
        stranger.write(
            frame(MessageType::FileEnd, R"({"taskId":0,"checksum":0,"relativePath":")" + path + "\"}"));
        stranger.write(frame(MessageType::SessionEnd));
        QSignalSpy heard(&m_new->link(), &NetworkManager::commandReceived);
        QTRY_COMPARE(heard.size(), 4);
        QTest::qWait(100);
        QVERIFY(tree(received()).isEmpty());
        QCOMPARE(ended.size() + restarted.size(), 0);
    }

    void strangerInMidRunIsSentNothing()
    {
        write(m_photos + u"/big"_s, QByteArray(300 * 1024 * 1024, 'b'));
        QVERIFY(pair());
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        QSignalSpy progress(&m_old->engine, &TransferEngine::transferProgressChanged);
        m_old->engine.startTransfer();
        QVERIFY(progress.wait());
        QTcpSocket stranger;
        stranger.connectToHost(u"127.0.0.1"_s, m_old->link().serverPort());
        QVERIFY(stranger.waitForConnected());
        QVERIFY2(!stranger.waitForReadyRead(500), "a stranger was sent a part of the run");
    }

    void successRateIgnoresWhatWasSkipped()
    {
        QSignalSpy info(&m_old->engine, &TransferEngine::info);
        MigrationReport report;
        auto *manager = m_old->engine.findChild<MigrationManager *>();
        Q_EMIT manager->completed(report);
        report.filesSuccess = 9;
        report.filesFailed = 1;
        report.filesSkipped = 3;
        Q_EMIT manager->completed(report);
        QCOMPARE(info.at(0).first().toString(), u"Transfer completed - Success rate: 100.0%"_s);
        QCOMPARE(info.at(1).first().toString(), u"Transfer completed - Success rate: 90.0%"_s);
    }

private:
    [[nodiscard]] bool pair()
    {
        QSignalSpy oldConnected(&m_old->engine, &TransferEngine::connected);
        QSignalSpy newConnected(&m_new->engine, &TransferEngine::connected);
        if (!m_old->hears(*m_new))
            return false;
        m_old->engine.connectByCode(m_new->engine.verifyCode());
        return QTest::qWaitFor([&] { return oldConnected.size() == 1 && newConnected.size() == 1; });
    }

    [[nodiscard]] QString received() const { return m_received; }

    std::unique_ptr<QTemporaryDir> m_disk;
    QString m_photos;
    QString m_received;
    std::unique_ptr<Pc> m_old;
    std::unique_ptr<Pc> m_new;
};

int main(int argc, char *argv[])
{
    const auto runAll = [&] {
        const TestMain::OwnHome home;
        const QCoreApplication app(argc, argv);
        return TestMain::runTests([] { return std::make_unique<TransferEngineTest>(); });
    };
    return Platform::endProcess(runAll());
}

#include "TransferEngineTest.moc"
