#include "PipelineTests.h"

#include "pipeline/DestinationMap.h"
#include "pipeline/FileChecksum.h"
#include "pipeline/MigrationManager.h"
#include "pipeline/TransferMessages.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Protocol::MessageType;

/// The manager by itself, fed with the messages of a peer that is not there.
class MigrationManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_manager.reset();
        m_root = std::make_unique<QTemporaryDir>();
        m_manager = std::make_unique<MigrationManager>();
        m_manager->setRole(NewPC);
        m_manager->setDestinationRoot(m_root->path());
    }

    void receivedRunEndsWithOneReport()
    {
        QSignalSpy completed(m_manager.get(), &MigrationManager::completed);
        m_manager->startReceiving();
        peer(MessageType::TransferStart, TransferMessages::Start{6, 18}.toPayload());
        for (const QString &top : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
            peerSends(top + u"/x"_s, "abc", top.front().unicode());
        const QString document = u"x-%1"_s.arg(QUuid::createUuid().toString(QUuid::WithoutBraces));
        peerSends(u"Documents/"_s + document, "abc", 1);
        peerSends(u"a/x"_s, "xyz", 2); // there already
        peer(MessageType::TransferComplete);
        QVERIFY(completed.wait());
        const auto report = completed.takeFirst().first().value<MigrationReport>();
        QVERIFY(QFile::remove(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' +
                              document));
        QCOMPARE(report.filesSuccess, 5);
        QCOMPARE(report.filesSkipped, 1);
        QCOMPARE(report.filesFailed, 1);
        QCOMPARE(report.totalBytes, 15);
        QCOMPARE(report.savedFolderCounts,
                 (QMap<QString, int>{{u"Documents"_s, 1}, {u"Received Files"_s, 4}}));
        QCOMPARE(report.savedFolderSamples,
                 (QMap<QString, QString>{{u"Received Files"_s, u"(a, b, c, ...)"_s}}));

        peer(MessageType::TransferComplete); // the run is over: no second report
        QVERIFY(!completed.wait(200));
    }

    void secondRunRestartsTheReceiver()
    {
        QSignalSpy completed(m_manager.get(), &MigrationManager::completed);
        QSignalSpy restarted(m_manager.get(), &MigrationManager::newTransferStarted);
        m_manager->startReceiving();
        peerSends(u"x"_s, "abc", 0);
        peer(MessageType::TransferComplete);
        QVERIFY(completed.wait());

        peer(MessageType::TransferStart, TransferMessages::Start{1, 3}.toPayload());
        QCOMPARE(restarted.size(), 1);
        peerSends(u"y"_s, "abc", 0);
        peer(MessageType::TransferComplete);
        QVERIFY(completed.wait());
        QCOMPARE(completed.last().first().value<MigrationReport>().filesSuccess, 1);
        QVERIFY(QFile::exists(m_root->filePath(u"y"_s)));
    }

    void nextRunWaitsForTheReportOfTheLast()
    {
        QSignalSpy completed(m_manager.get(), &MigrationManager::completed);
        QSignalSpy restarted(m_manager.get(), &MigrationManager::newTransferStarted);
        m_manager->startReceiving();
        for (int id = 0; id < 6; ++id)
            peerSends(u"first/%1"_s.arg(id), someBytes(9 * 1024 * 1024), id);
        peer(MessageType::TransferComplete);
        // All of this arrives while the receiver still works off the first run.
        QSignalSpy ended(m_manager.get(), &MigrationManager::sessionEndReceived);
        peer(MessageType::SessionEnd);
        QCOMPARE(ended.size(), 0);
        peer(MessageType::TransferReset);
        peer(MessageType::TransferStart, TransferMessages::Start{1, 3}.toPayload());
        peerSends(u"second"_s, "abc", 0);
        peer(MessageType::TransferComplete);
        QTRY_COMPARE(completed.size(), 2);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(restarted.size(), 1);
        QCOMPARE(completed.at(0).first().value<MigrationReport>().filesSuccess, 6);
        QCOMPARE(completed.at(1).first().value<MigrationReport>().filesSuccess, 1);
        QVERIFY(QFile::exists(m_root->filePath(u"second"_s)));
    }

    void peerCancelRearmsTheNewPC()
    {
        QSignalSpy cancelled(m_manager.get(), &MigrationManager::peerCancelled);
        QSignalSpy completed(m_manager.get(), &MigrationManager::completed);
        m_manager->startReceiving();
        peer(MessageType::FileHeader, TransferMessages::Header{0, u"half"_s, {}, 6, 0}.toPayload());
        QTRY_VERIFY(QFile::exists(m_root->filePath(u"half"_s)));
        peer(MessageType::TransferCancel);
        peer(MessageType::TransferCancel); // dropped: the run is over
        QCOMPARE(cancelled.size(), 1);
        QTRY_VERIFY(!QFile::exists(m_root->filePath(u"half"_s)));

        // Re-armed by itself: files are taken without another TransferStart.
        QTRY_VERIFY([this] {
            peer(MessageType::FileHeader, TransferMessages::Header{0, u"again"_s, {}, 6, 0}.toPayload());
            return QFile::exists(m_root->filePath(u"again"_s));
        }());
        peer(MessageType::TransferComplete);
        QVERIFY(completed.wait());
    }

    void cancelWhilePausedLeavesNothingBehind()
    {
        m_manager->startReceiving();
        peer(MessageType::FileHeader, TransferMessages::Header{0, u"half"_s, {}, 6, 0}.toPayload());
        QTRY_VERIFY(QFile::exists(m_root->filePath(u"half"_s)));
        m_manager->pause();
        peerSends(u"more"_s, "abc", 1);
        m_manager->cancel();
        QTRY_VERIFY(!QFile::exists(m_root->filePath(u"more"_s)));
    }

    void resetBeforeTheReceiverBeganStandsFast()
    {
        for (int round = 0; round < 50; ++round) {
            m_manager->startReceiving();
            peer(MessageType::FileHeader, TransferMessages::Header{0, u"half"_s, {}, 6, 0}.toPayload());
            m_manager->resetAndListen();
            m_manager->startReceiving(); // whatever the last receiver still had to do is done now
            m_manager->resetAndListen();
            QVERIFY(!QFile::exists(m_root->filePath(u"half"_s)));
        }
    }

    void stopRightAfterStartIsQuick()
    {
        FolderInfo folder;
        folder.path = m_root->path();
        folder.selected = true;
        QFile file(m_root->filePath(u"x"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        m_manager->setRole(OldPC);
        QElapsedTimer timer;
        timer.start();
        for (int round = 0; round < 100; ++round) {
            m_manager->start({}, {folder}, {}, {});
            QThread::usleep(static_cast<unsigned long>(round) * 2);
            m_manager->resetAndListen();
        }
        m_manager.reset();
        QVERIFY2(timer.elapsed() < 2500, "a worker missed its stop");
    }

    void rearmingIsDroppedWhenNoLongerWanted_data()
    {
        addColumns<int>("event");
        QTest::newRow("session ended by the peer") << 0;
        QTest::newRow("session ended here") << 1;
        QTest::newRow("role changed") << 2;
    }
    void rearmingIsDroppedWhenNoLongerWanted()
    {
        QFETCH(int, event);
        m_manager->startReceiving();
        peer(MessageType::TransferCancel);
        if (event == 0)
            peer(MessageType::SessionEnd);
        else if (event == 1)
            m_manager->endSession();
        else
            m_manager->setRole(OldPC);
        QTest::qWait(300);
        m_manager->setRole(NewPC);
        QSignalSpy paused(m_manager.get(), &MigrationManager::paused);
        m_manager->pause(); // works only while a run is on
        QCOMPARE(paused.size(), 0);
    }

    void pauseAndResumeActOnce()
    {
        QSignalSpy paused(m_manager.get(), &MigrationManager::paused);
        QSignalSpy byPeer(m_manager.get(), &MigrationManager::pausedByPeer);
        QSignalSpy resumedByPeer(m_manager.get(), &MigrationManager::resumedByPeer);
        QSignalSpy completed(m_manager.get(), &MigrationManager::completed);
        m_manager->pause();
        QCOMPARE(paused.size(), 0);
        m_manager->startReceiving();
        m_manager->pause();
        m_manager->pause();
        QCOMPARE(paused.size(), 1);
        peer(MessageType::TransferPause);
        QCOMPARE(byPeer.size(), 0);
        peerSends(u"x"_s, "abc", 0);
        peer(MessageType::TransferComplete);
        QVERIFY(!completed.wait(300)); // the chunk waits
        peer(MessageType::TransferResume);
        QCOMPARE(resumedByPeer.size(), 1);
        QVERIFY(completed.wait());

        // A pause does not outlive its run.
        m_manager->startReceiving();
        m_manager->pause();
        m_manager->resetAndListen();
        m_manager->startReceiving();
        peer(MessageType::TransferPause);
        QCOMPARE(byPeer.size(), 1);
    }

    void idleManagerTakesOnlySomeMessages()
    {
        QSignalSpy ended(m_manager.get(), &MigrationManager::sessionEndReceived);
        QSignalSpy reset(m_manager.get(), &MigrationManager::transferReset);
        QSignalSpy cancelled(m_manager.get(), &MigrationManager::peerCancelled);
        QSignalSpy restarted(m_manager.get(), &MigrationManager::newTransferStarted);
        peer(MessageType::SessionEnd);
        peer(MessageType::TransferReset);
        peer(MessageType::TransferCancel);
        peer(MessageType(21));
        QCOMPARE(ended.size(), 1);
        QCOMPARE(reset.size(), 1);
        QCOMPARE(cancelled.size(), 0);
        m_manager->setRole(OldPC);
        peer(MessageType::TransferStart);
        QCOMPARE(restarted.size(), 0);
    }

    void senderAloneStopsAtOnce()
    {
        FolderInfo folder;
        folder.path = m_root->path();
        folder.selected = true;
        QFile file(m_root->filePath(u"x"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();

        m_manager->setRole(OldPC);
        QSignalSpy completed(m_manager.get(), &MigrationManager::completed);
        QSignalSpy fileDone(m_manager.get(), &MigrationManager::fileTransferCompleted);
        m_manager->start({}, {folder}, {}, {});
        QVERIFY(fileDone.wait()); // its batch waits for an answer that nobody gives
        QElapsedTimer timer;
        timer.start();
        m_manager.reset();
        QVERIFY2(timer.elapsed() < 2500, "the waiting worker was not woken");
        QCOMPARE(completed.size(), 0);

        // An empty run is complete by itself.
        init();
        m_manager->setRole(OldPC);
        QSignalSpy emptyCompleted(m_manager.get(), &MigrationManager::completed);
        m_manager->start({}, {}, {}, {});
        QVERIFY(emptyCompleted.wait());
    }

    void leftOversOfApplicationsAreCleanedUp()
    {
        QSignalSpy completed(m_manager.get(), &MigrationManager::completed);
        m_manager->startReceiving();
        peerSends(u"Apps/Tool/x.dll"_s, "abc", 0);
        QTRY_VERIFY(QFile::exists(receivedAppsFolder() + u"/Tool/x.dll"_s));
        peer(MessageType::TransferComplete);
        QVERIFY(completed.wait());
        QVERIFY(!QDir(receivedAppsFolder()).exists());
    }

private:
    void peer(MessageType type, const QByteArray &payload = {})
    {
        m_manager->onNetworkCommandReceived(type, payload);
    }
    void peerSends(const QString &relativePath, const QByteArray &content, int taskId)
    {
        QByteArray chunk(TransferMessages::ChunkHeader::Size, Qt::Uninitialized);
        TransferMessages::ChunkHeader{0, qint32(content.size()), taskId}.writeTo(chunk.data());
        FileChecksum sum;
        sum.update(content);
        peer(MessageType::FileHeader,
             TransferMessages::Header{taskId, relativePath, {}, content.size(), 0}.toPayload());
        peer(MessageType::FileData, chunk + content);
        peer(MessageType::FileEnd,
             TransferMessages::End{taskId, relativePath, sum.value(), content.size()}.toPayload());
    }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<MigrationManager> m_manager;
};

ZANDROVE_TEST(MigrationManagerTest)
#include "MigrationManagerTest.moc"
