#include "SilentEngine.h"
#include "TestFiles.h"
#include "TestMain.h"

#include "pipeline/MigrationManager.h"

#include <QDirIterator>
#include <QTcpSocket>

using Protocol::MessageType;

namespace {

/// One PC: a whole engine on free ports, whose broadcasts reach nobody but the test.
struct Pc
{
    QByteArray broadcast;
    TransferEngine engine{nullptr, silentEnvironment([this](const QByteArray &bytes) { broadcast = bytes; })};
    NetworkManager &link = *engine.findChild<NetworkManager *>();
    QSignalSpy connected{&engine, &TransferEngine::connected};
    QSignalSpy gone{&engine, &TransferEngine::disconnected};
    QSignalSpy refused{&engine, &TransferEngine::connectionFailed};
    QSignalSpy progress{&engine, &TransferEngine::transferProgressChanged};
    QSignalSpy completed{&engine, &TransferEngine::transferCompleted};
    QSignalSpy failed{&engine, &TransferEngine::transferFailed};
    QSignalSpy restarted{&engine, &TransferEngine::newTransferStarted};

    explicit Pc(int role)
    {
        engine.setRole(role);
        engine.startDiscovery();
        QObject::connect(&engine, &TransferEngine::connectionRequested, &engine,
                         [this] { engine.acceptConnection(engine.verifyCode()); });
    }

    /// Lets this PC hear `other`, from a loopback address that is not its own.
    bool hears(Pc &other)
    {
        if (!QTest::qWaitFor([&other] { return !other.broadcast.isEmpty(); }))
            return false;
        link.handleDatagram(other.broadcast, QHostAddress(u"127.0.0.2"_s));
        return !engine.discoveredPCs().isEmpty();
    }

    [[nodiscard]] MigrationReport report() const { return completed.last().first().value<MigrationReport>(); }
};

/// Every file below `path` with its content.
QMap<QString, QByteArray> tree(const QString &path)
{
    QMap<QString, QByteArray> files;
    QDirIterator entries(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        files.insert(QDir(path).relativeFilePath(file), contentOf(file));
    }
    return files;
}

/// Somebody whom nobody has let in.
struct Stranger
{
    QTcpSocket socket;

    explicit Stranger(const Pc &pc)
    {
        socket.connectToHost(u"127.0.0.1"_s, pc.link.serverPort());
        if (!socket.waitForConnected())
            qFatal("cannot dial the PC under test");
    }
    void say(MessageType type, const QByteArray &payload)
    {
        socket.write(Protocol::buildFrame(type, payload, 1));
    }
};

} // namespace

/// Two whole engines in one process, over real sockets and real files.
class TransferEngineTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_disk;
    QString m_photos;
    QString m_received;
    std::unique_ptr<Pc> m_old;
    std::unique_ptr<Pc> m_new;

    bool pair()
    {
        const qsizetype before = m_old->connected.size() + m_new->connected.size();
        if (!m_old->hears(*m_new))
            return false;
        m_old->engine.connectByCode(m_new->engine.verifyCode());
        return QTest::qWaitFor(
            [&] { return m_old->connected.size() + m_new->connected.size() == before + 2; });
    }

    /// Has the Old PC send the photos.
    void startRun()
    {
        m_new->engine.startReceiving();
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
    }

private Q_SLOTS:
    void init()
    {
        m_disk = std::make_unique<QTemporaryDir>();
        m_photos = m_disk->filePath(u"Photos"_s);
        m_old = std::make_unique<Pc>(OldPC);
        m_new = std::make_unique<Pc>(NewPC);
        m_received = m_new->engine.destinationRoot() + u"/Photos"_s;
    }

    void cleanup()
    {
        m_old.reset();
        m_new.reset();
        QDir(m_received).removeRecursively();
    }

    void whatCannotBeginIsRefused()
    {
        m_old->engine.connectByCode(u"12345"_s);
        m_old->engine.acceptConnection(m_old->engine.verifyCode() + u' ');
        QCOMPARE(m_old->refused, (QList<QVariantList>{{u"No PC found with verification code: 12345"_s},
                                                      {u"Invalid verification code"_s}}));
        QCOMPARE(m_old->engine.verifyCode().size(), 4);

        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.startTransfer();
        QVERIFY(pair());
        m_old->engine.setSelectedPaths({});
        m_old->engine.startTransfer();
        m_old->engine.setSelectedPaths({m_photos});
        m_old->engine.connectToPC(m_old->engine.discoveredPCs().first());
        m_old->engine.startTransfer(); // nobody has said yes to that one yet
        const QVariantList failure = {u"Cannot start transfer. Check connection and selection."_s};
        QCOMPARE(m_old->failed, QList<QVariantList>(3, failure));
    }

    void brokenRunDoesNotGoOnWithALaterPeer()
    {
        for (int i = 0; i < 40; ++i)
            writeFile(m_photos + u"/%1"_s.arg(i), QByteArray(2 * 1024 * 1024, char(i)));
        QVERIFY(pair());
        startRun();
        QVERIFY(m_new->progress.wait());
        m_old->engine.pauseTransfer();
        m_old->link.findChild<QTcpSocket *>()->abort(); // no word of farewell
        QVERIFY(m_new->gone.wait());
        m_new->engine.resetForNewConnection();
        QVERIFY(pair());
        m_new->engine.startReceiving();
        const QSignalSpy heard(&m_new->link, &NetworkManager::commandReceived);
        m_old->engine.resumeTransfer();
        QVERIFY(!m_old->completed.wait(700));
        QCOMPARE(heard.size(), 0);

        m_old->engine.resetForNewConnection(); // and a run of its own begins from the first file
        m_old->engine.startTransfer();
        QVERIFY(m_new->completed.wait());
        QTRY_COMPARE(m_old->completed.size(), 1);
        QVERIFY(tree(m_received) == tree(m_photos));
    }

    void strangerCanNeitherWriteNorEndTheSession()
    {
        const QSignalSpy ended(&m_new->engine, &TransferEngine::sessionEndReceived);
        const QSignalSpy heard(&m_new->link, &NetworkManager::commandReceived);
        m_new->engine.startReceiving();
        Stranger stranger(*m_new);
        stranger.say(MessageType::TransferStart, R"({"fileCount":1,"totalSize":0})");
        stranger.say(MessageType::FileHeader, R"({"taskId":0,"fileSize":0,"relativePath":"Photos/x"})");
        stranger.say(MessageType::FileEnd, R"({"taskId":0,"checksum":0,"relativePath":"Photos/x"})");
        stranger.say(MessageType::SessionEnd, {});
        QTRY_COMPARE(stranger.socket.bytesToWrite(), 0);
        QTest::qWait(200);
        QCOMPARE(heard.size(), 0);
        QVERIFY(tree(m_received).isEmpty());
        QCOMPARE(ended.size() + m_new->restarted.size(), 0);
    }

    void strangerInMidRunIsSentNothing()
    {
        writeFile(m_photos + u"/big"_s, QByteArray(300 * 1024 * 1024, 'b'));
        QVERIFY(pair());
        startRun();
        QVERIFY(m_old->progress.wait());
        Stranger stranger(*m_old);
        QVERIFY2(!stranger.socket.waitForReadyRead(500), "a stranger was sent a part of the run");
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
        QCOMPARE(info, (QList<QVariantList>{{u"Transfer completed - Success rate: 100.0%"_s},
                                            {u"Transfer completed - Success rate: 90.0%"_s}}));
    }
};

ZANDROVE_TEST(TransferEngineTest)
#include "TransferEngineTest.moc"
