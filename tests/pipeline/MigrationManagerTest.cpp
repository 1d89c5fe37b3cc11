#include "PipelineTests.h"

#include "pipeline/DestinationMap.h"
#include "pipeline/MigrationManager.h"

#include <QStandardPaths>
#include <QThread>
#include <QUuid>

using Protocol::MessageType;

namespace {

/// A manager by itself, with what it says.
struct Pc
{
    MigrationManager manager;
    QSignalSpy completed{&manager, &MigrationManager::completed};
    QSignalSpy restarted{&manager, &MigrationManager::newTransferStarted};
    QSignalSpy cancelled{&manager, &MigrationManager::peerCancelled};
    QSignalSpy reset{&manager, &MigrationManager::transferReset};
    QSignalSpy ended{&manager, &MigrationManager::sessionEndReceived};
    QSignalSpy paused{&manager, &MigrationManager::paused};
    QSignalSpy pausedByPeer{&manager, &MigrationManager::pausedByPeer};
    QSignalSpy resumedByPeer{&manager, &MigrationManager::resumedByPeer};

    [[nodiscard]] MigrationReport report(qsizetype i) const
    {
        return completed.at(i).first().value<MigrationReport>();
    }
};

} // namespace

/// The manager of a New PC, fed with the messages of a peer that is not there; and that of an Old PC whose
/// peer does not answer.
class MigrationManagerTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<Pc> m_pc;
    MigrationManager *m_manager = nullptr;

    void peer(MessageType type, const QByteArray &payload = {})
    {
        m_manager->onNetworkCommandReceived(type, payload);
    }
    void peerStarts(int files, qint64 bytes)
    {
        peer(MessageType::TransferStart, TransferMessages::Start{files, bytes}.toPayload());
    }
    void peerBegins(const QString &relativePath, qint64 size = 6, int taskId = 0)
    {
        peer(MessageType::FileHeader,
             TransferMessages::Header{taskId, relativePath, {}, size, 0}.toPayload());
    }
    void peerSends(const QString &relativePath, const QByteArray &content, int taskId = 0)
    {
        peerBegins(relativePath, content.size(), taskId);
        peer(MessageType::FileData, chunkPayload(taskId, content));
        peer(MessageType::FileEnd,
             TransferMessages::End{taskId, relativePath, checksumOf(content), content.size()}.toPayload());
    }
    /// Under its own name or a temporary one.
    [[nodiscard]] bool isThere(const QString &name) const
    {
        return !QDir(m_root->path())
                    .entryList({name, u".%1.*"_s.arg(name)}, QDir::Files | QDir::Hidden)
                    .isEmpty();
    }

    /// The folder that this PC sends.
    [[nodiscard]] QList<FolderInfo> chosenFolder()
    {
        writeFile(m_root->filePath(u"x"_s), {});
        m_manager->setRole(OldPC);
        FolderInfo folder;
        folder.path = m_root->path();
        folder.selected = true;
        return {folder};
    }

private Q_SLOTS:
    void init()
    {
        m_pc.reset();
        m_root = std::make_unique<QTemporaryDir>();
        m_pc = std::make_unique<Pc>();
        m_manager = &m_pc->manager;
        m_manager->setRole(NewPC);
        m_manager->setDestinationRoot(m_root->path());
    }

    void receivedRunEndsWithOneReport()
    {
        m_manager->startReceiving();
        peerStarts(6, 18);
        for (const QString &top : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
            peerSends(top + u"/x"_s, "abc", top.front().unicode());
        peerSends(u"Documents/x"_s, "abc", 1);
        peerSends(u"a/x"_s, "xyz", 2); // there already
        peer(MessageType::TransferComplete);
        QVERIFY(m_pc->completed.wait());
        QVERIFY(QFile::remove(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u"/x"_s));
        const MigrationReport report = m_pc->report(0);
        QCOMPARE(
            (QList<qint64>{report.filesSuccess, report.filesSkipped, report.filesFailed, report.totalBytes}),
            (QList<qint64>{5, 1, 1, 15}));
        QCOMPARE(report.savedFolderCounts,
                 (QMap<QString, int>{{u"Documents"_s, 1}, {u"Received Files"_s, 4}}));
        QCOMPARE(report.savedFolderSamples,
                 (QMap<QString, QString>{{u"Received Files"_s, u"(a, b, c, ...)"_s}}));

        peer(MessageType::TransferComplete); // the run is over: no second report
        QVERIFY(!m_pc->completed.wait(200));
    }

    void lostRunDoesNotAnswerOnTheNextLink()
    {
        quint64 number = 1;
        int sent = 0;
        RunLink link;
        link.acceptedNumber = [&number] { return number; };
        link.send = [&sent](MessageType, const QByteArray &) { ++sent; };
        std::function<void()> changed;
        link.watch = [&changed](const QObject *, std::function<void()> onChange) {
            changed = std::move(onChange);
        };
        m_manager->setLink(link);
        m_manager->startReceiving();
        peerStarts(1, 6);
        peerSends(u"x"_s, "abc");
        peer(MessageType::FileAck, R"({"isRequest":true,"batchId":1,"startTaskId":0,"endTaskId":0})");
        number = 0;
        changed();
        number = 2;
        changed();
        QVERIFY(QSignalSpy(m_manager, &MigrationManager::runEnded).wait());
        QCOMPARE(sent, 0);
    }

    void cancelWhilePausedLeavesNothingBehind()
    {
        m_manager->startReceiving();
        peerBegins(u"half"_s);
        QTRY_VERIFY(isThere(u"half"_s));
        m_manager->pause();
        peerSends(u"more"_s, "abc", 1);
        m_manager->cancel();
        QTRY_VERIFY(!isThere(u"more"_s));
    }

    void resetBeforeTheReceiverBeganStandsFast()
    {
        for (int round = 0; round < 50; ++round) {
            m_manager->startReceiving();
            peerBegins(u"half"_s);
            m_manager->resetAndListen();
            m_manager->startReceiving(); // whatever the last receiver still had to do is done now
            m_manager->resetAndListen();
            QVERIFY(!isThere(u"half"_s));
        }
    }

    void stopRightAfterStartIsQuick()
    {
        const auto folders = chosenFolder();
        QElapsedTimer timer;
        for (int round = 0; round < 100; ++round) {
            timer.start();
            m_manager->start({}, folders, {}, {});
            QThread::usleep(static_cast<unsigned long>(round) * 2);
            m_manager->resetAndListen();
            if (round == 99)
                m_pc.reset();
            QVERIFY2(timer.elapsed() < 2500, "a worker missed its stop"); // which costs its round 3 s
        }
    }

    void peerCancelRearmsTheNewPC()
    {
        m_manager->startReceiving();
        peerBegins(u"half"_s);
        QTRY_VERIFY(isThere(u"half"_s));
        peer(MessageType::TransferCancel);
        peer(MessageType::TransferCancel); // dropped: the run is over
        QCOMPARE(m_pc->cancelled.size(), 1);
        QTRY_VERIFY(!isThere(u"half"_s));

        // Re-armed by itself: files are taken without another TransferStart.
        QTRY_VERIFY([this] {
            peerBegins(u"again"_s);
            return isThere(u"again"_s);
        }());
        peer(MessageType::TransferComplete);
        QVERIFY(m_pc->completed.wait());
    }

    void rearmingIsDroppedWhenNoLongerWanted_data()
    {
        const auto row = addColumns<std::function<void(MigrationManager &)>>("event");
        row("session ended by the peer",
            [](MigrationManager &manager) { manager.onNetworkCommandReceived(MessageType::SessionEnd, {}); });
        row("session ended here", [](MigrationManager &manager) { manager.endSession(); });
        row("role changed", [](MigrationManager &manager) { manager.setRole(OldPC); });
    }
    void rearmingIsDroppedWhenNoLongerWanted()
    {
        QFETCH(std::function<void(MigrationManager &)>, event);
        m_manager->startReceiving();
        peer(MessageType::TransferCancel);
        event(*m_manager);
        QTest::qWait(300);
        m_manager->setRole(NewPC);
        m_manager->pause(); // works only while a run is on
        QCOMPARE(m_pc->paused.size(), 0);
    }

    void pauseAndResumeActOnce()
    {
        m_manager->pause();
        QCOMPARE(m_pc->paused.size(), 0);
        m_manager->startReceiving();
        m_manager->pause();
        m_manager->pause();
        QCOMPARE(m_pc->paused.size(), 1);
        peer(MessageType::TransferPause);
        QCOMPARE(m_pc->pausedByPeer.size(), 0);
        peerSends(u"x"_s, "abc");
        peer(MessageType::TransferComplete);
        QVERIFY(!m_pc->completed.wait(300)); // the chunk waits
        peer(MessageType::TransferResume);
        QCOMPARE(m_pc->resumedByPeer.size(), 1);
        QVERIFY(m_pc->completed.wait());

        // A pause does not outlive its run.
        m_manager->startReceiving();
        m_manager->pause();
        m_manager->resetAndListen();
        m_manager->startReceiving();
        peer(MessageType::TransferPause);
        QCOMPARE(m_pc->pausedByPeer.size(), 1);
    }

    void idleManagerTakesOnlySomeMessages()
    {
        for (const int type : {int(MessageType::SessionEnd), int(MessageType::TransferReset),
                               int(MessageType::TransferCancel), 21})
            peer(MessageType(type));
        QCOMPARE(m_pc->ended.size(), 1);
        QCOMPARE(m_pc->reset.size(), 1);
        QCOMPARE(m_pc->cancelled.size(), 0);
        m_manager->setRole(OldPC);
        peer(MessageType::TransferStart);
        QCOMPARE(m_pc->restarted.size(), 0);
    }

    void senderAloneStopsAtOnce()
    {
        const auto folders = chosenFolder();
        m_manager->start({}, {}, {}, {});
        QVERIFY(m_pc->completed.wait()); // an empty run is complete by itself
        m_manager->resetAndListen();
        m_pc->completed.clear();

        QSignalSpy fileDone(m_manager, &MigrationManager::fileTransferCompleted);
        m_manager->start({}, folders, {}, {});
        QVERIFY(fileDone.wait()); // its batch waits for an answer that nobody gives
        QCOMPARE(m_pc->completed.size(), 0);
        QElapsedTimer timer;
        timer.start();
        m_pc.reset();
        QVERIFY2(timer.elapsed() < 2500, "the waiting worker was not woken");
    }

    void leftOversOfApplicationsAreCleanedUp()
    {
        m_manager->startReceiving();
        peerSends(u"Apps/Tool/x.dll"_s, "abc");
        QTRY_VERIFY(QFile::exists(receivedAppsFolder() + u"/Tool/x.dll"_s));
        peer(MessageType::TransferComplete);
        QVERIFY(m_pc->completed.wait());
        QVERIFY(!QDir(receivedAppsFolder()).exists());
    }
};

ZANDROVE_TEST(MigrationManagerTest)
#include "MigrationManagerTest.moc"
