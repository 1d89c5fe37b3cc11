#include "PipelineTests.h"

#include "pipeline/BatchPlanner.h"
#include "pipeline/DestinationGuard.h"
#include "pipeline/DestinationMap.h"
#include "pipeline/FileChecksum.h"
#include "pipeline/FileProgress.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/TaskList.h"
#include "pipeline/TransferMessages.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using namespace std::chrono_literals;

namespace {

/// The sum bit by bit, without a table but for the eight entries that differ from the standard one.
quint32 referenceChecksum(const QByteArray &bytes)
{
    const QMap<quint32, quint32> altered{{111, 0xDD0D7A9B}, {237, 0xDEDE86C5}, {238, 0x47D7977F},
                                         {239, 0x30D0D6E9}, {240, 0xBDD3D09C}, {241, 0xCAD4E10A},
                                         {242, 0x53DDA0B0}, {243, 0x24DAB526}};
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        const quint32 index = (sum ^ quint8(byte)) & 0xFF;
        quint32 entry = index;
        for (int bit = 0; bit < 8; ++bit)
            entry = (entry & 1) ? (entry >> 1) ^ 0xEDB88320 : entry >> 1;
        sum = altered.value(index, entry) ^ (sum >> 8);
    }
    return ~sum;
}

quint32 checksum(const QByteArray &bytes)
{
    FileChecksum sum;
    sum.update(bytes);
    return sum.value();
}

void touch(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x");
}

/// Whether a link is something that a path can lead through, and not a file that names another one.
bool canLink()
{
    const QTemporaryDir scratch;
    return QFile::link(scratch.path(), scratch.filePath(u"link"_s)) &&
           QFileInfo(scratch.filePath(u"link"_s)).isDir();
}

QString standard(QStandardPaths::StandardLocation location)
{
    return QStandardPaths::writableLocation(location);
}

} // namespace

class PipelineRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksumFollowsItsTable()
    {
        QCOMPARE(checksum({}), 0u);
        QCOMPARE(checksum("123456789"), 0xCBF43926u);
        // The first byte meets the index 0xFF ^ byte: one input for each altered entry, alone and in the
        // middle.
        for (const int index : {111, 237, 238, 239, 240, 241, 242, 243}) {
            const QByteArray alone(1, char(0xFF ^ index));
            QCOMPARE(checksum(alone), referenceChecksum(alone));
            QVERIFY(checksum(alone + "tail") == referenceChecksum(alone + "tail"));
        }
        const QByteArray bytes = someBytes(100000);
        QCOMPARE(checksum(bytes), referenceChecksum(bytes));
    }

    void checksumMayBeFedInPieces()
    {
        const QByteArray bytes = someBytes(1000);
        FileChecksum sum;
        for (qsizetype at = 0; at < bytes.size(); at += 7)
            sum.update(QByteArrayView(bytes).sliced(at, std::min<qsizetype>(7, bytes.size() - at)));
        QCOMPARE(sum.value(), checksum(bytes));
        sum.reset();
        QCOMPARE(sum.value(), 0u);
    }

    void batchesCloseByCountBytesAndEnd()
    {
        BatchPlanner planner;
        for (int id = 0; id < 9; ++id) {
            planner.addSent(1);
            QVERIFY(!planner.closeAfter(id, 1, false));
        }
        planner.addSent(1);
        const auto tenth = planner.closeAfter(9, 1, false);
        QVERIFY(tenth && tenth->waits);
        QCOMPARE(tenth->batchId, 1);
        QCOMPARE(tenth->startTaskId, 0);
        QCOMPARE(tenth->endTaskId, 9);
        QCOMPARE(tenth->bytes, 10);

        planner.addSent(BatchPlanner::MaxBytes - 1);
        QVERIFY(!planner.closeAfter(10, BatchPlanner::MaxBytes - 1, false));
        planner.addSent(1);
        const auto full = planner.closeAfter(11, 1, false);
        QVERIFY(full);
        QCOMPARE(full->batchId, 2);
        QCOMPARE(full->startTaskId, 10);

        QVERIFY(!planner.closeAfter(12, 1, true)); // nothing in the open batch
        planner.addSent(5);
        QVERIFY(planner.closeAfter(13, 5, true));
    }

    void bigFileIsAskedForAlone()
    {
        BatchPlanner planner;
        planner.addSent(10);
        QVERIFY(!planner.closeAfter(0, 10, false));
        planner.addSent(BatchPlanner::SingleFileBytes);
        QVERIFY(planner.closeAfter(1, BatchPlanner::SingleFileBytes, false)->waits);

        planner.addSent(10);
        QVERIFY(!planner.closeAfter(2, 10, false));
        planner.addSent(BatchPlanner::SingleFileBytes + 1);
        const auto big = planner.closeAfter(3, BatchPlanner::SingleFileBytes + 1, true);
        QVERIFY(big && !big->waits);
        QCOMPARE(big->startTaskId, 3);
        QCOMPARE(big->endTaskId, 3);
        QCOMPARE(big->bytes, BatchPlanner::SingleFileBytes + 1);

        planner.addSent(1);
        QCOMPARE(planner.closeAfter(4, 1, true)->startTaskId, 4);
    }

    void failedFilesCountWithoutTheirBytes()
    {
        BatchPlanner planner;
        for (int id = 0; id < 9; ++id) {
            planner.addFailed();
            QVERIFY(!planner.closeAfter(id, BatchPlanner::MaxBytes, false));
        }
        planner.addFailed();
        const auto request = planner.closeAfter(9, BatchPlanner::MaxBytes, false);
        QVERIFY(request);
        QCOMPARE(request->bytes, 0);
    }

    void ackTimeoutGrowsWithTheBatch()
    {
        constexpr qint64 GiB = qint64(1) << 30;
        QCOMPARE(batchAckTimeout(0), 300000ms);
        QCOMPARE(batchAckTimeout(GiB - 1), 300000ms);
        QCOMPARE(batchAckTimeout(GiB + 52428799), 420000ms);
        QCOMPARE(batchAckTimeout(3 * GiB), 660000ms);
    }

    void taskRoots_data()
    {
        addColumns<QString, QString>("folder", "root");
        QTest::newRow("standard folder") << u"/home/u/Documents"_s << u"Documents"_s;
        QTest::newRow("other letter case") << u"/HOME/u/documents/Work Plans"_s << u"Documents/Work Plans"_s;
        QTest::newRow("deep") << u"/home/u/Documents/a/B"_s << u"Documents/a/B"_s;
        QTest::newRow("trailing slash") << u"/home/u/Documents/a/"_s << u"Documents/a"_s;
        QTest::newRow("name that only begins alike") << u"/home/u/Documents2/a"_s << u"a"_s;
        QTest::newRow("lower case is longer") << u"/home/İ/Pictures/Trip"_s << u"Pictures/Trip"_s;
        QTest::newRow("elsewhere") << u"/data/Music"_s << u"Music"_s;
        QTest::newRow("drive root") << u"/"_s << u""_s;
    }
    void taskRoots()
    {
        QFETCH(QString, folder);
        const QString pictures = u"/home/İ/Pictures"_s;
        const StandardFolders folders{{u"/home/u/documents"_s, {u"Documents"_s, 17}},
                                      {pictures.toLower(), {u"Pictures"_s, pictures.size()}}};
        QTEST(taskRoot(folder, folders), "root");
    }

    void taskListTakesEachPlacedFileOnce()
    {
        const QTemporaryDir scratch;
        const QString top = scratch.filePath(u"Photos"_s);
        touch(top + u"/a.jpg"_s);
        touch(top + u"/2020/b.jpg"_s);
        touch(top + u"/.hidden/c.jpg"_s);
        if (canLink())
            QVERIFY(QFile::link(top, top + u"/2020/loop"_s));
        const auto folder = [](const QString &path, bool selected = true) {
            FolderInfo info;
            info.path = path;
            info.selected = selected;
            return info;
        };

        int nextTaskId = 5;
        const auto tasks = taskListFor({folder(top), folder(top), folder(top + u"/2020"_s),
                                        folder(top, false), folder(top + u"/missing"_s)},
                                       nextTaskId);
        QStringList places;
        QList<int> ids;
        for (const FileTransferTask &task : tasks) {
            places.append(task.relativePath);
            ids.append(task.taskId);
            QCOMPARE(task.fileSize, 1);
            QVERIFY(QFile::exists(task.sourcePath));
        }
        // 2020 goes to a place of its own as well: two tasks for that file, one for the other.
        QCOMPARE(ids, (QList<int>{5, 6, 7}));
        places.sort();
        QCOMPARE(places, (QStringList{u"2020/b.jpg"_s, u"Photos/2020/b.jpg"_s, u"Photos/a.jpg"_s}));
        QCOMPARE(nextTaskId, 8);
    }

    void destinations_data()
    {
        const QString root = u"/dest"_s;
        addColumns<QString, QString>("relativePath", "destination");
        QTest::newRow("standard folder")
            << u"Documents/a/b.txt"_s << standard(QStandardPaths::DocumentsLocation) + u"/a/b.txt"_s;
        QTest::newRow("any letter case")
            << u"DESKTOP/a.txt"_s << standard(QStandardPaths::DesktopLocation) + u"/a.txt"_s;
        QTest::newRow("backslashes") << u"videos\\x\\a.mp4"_s
                                     << standard(QStandardPaths::MoviesLocation) + u"/x/a.mp4"_s;
        QTest::newRow("other root") << u"Photos/a.jpg"_s << root + u"/Photos/a.jpg"_s;
        QTest::newRow("no slash") << u"Documents"_s << root + u"/Documents"_s;
        QTest::newRow("leading slash") << u"/Documents/a"_s << root + u"//Documents/a"_s;
        QTest::newRow("application") << u"aPPs/Tool/x.dll"_s << receivedAppsFolder() + u"/Tool/x.dll"_s;
    }
    void destinations()
    {
        QFETCH(QString, relativePath);
        QTEST(destinationFor(relativePath, u"/dest"_s), "destination");
        QCOMPARE(destinationFor(u"x/y"_s, {}),
                 standard(QStandardPaths::DownloadLocation) + u"/Zandrove/x/y"_s);
    }

    void appDestinationBehindALinkIsRefused()
    {
        if (!canLink())
            QSKIP("this system's links are ordinary files");
        const QString path = u"Apps/Tool/x.dll"_s;
        QVERIFY(isSafeDestination(path, destinationFor(path, {})));

        const QTemporaryDir elsewhere;
        const QString zandrove = QFileInfo(receivedAppsFolder()).path();
        QVERIFY(QFile::link(elsewhere.path(), zandrove));
        QVERIFY(!isSafeDestination(path, destinationFor(path, {})));
        QVERIFY(!removeReceived(receivedAppsFolder()));
        QVERIFY(QFile::remove(zandrove));
    }

    void receivedFilesAreFiledByCategory()
    {
        const QString other = u"Received Files"_s;
        ReceivedFolders received;
        const QString home = QDir::homePath();
        received.record(u"documents/x/a.txt"_s, home + u"/Documents/x/a.txt"_s, other);
        received.record(u"Documents/b.txt"_s, home + u"/Documents/b.txt"_s, other);
        received.record(u"Music/empty"_s, {}, other); // an empty file that was left alone
        received.record(u"Music/a.ogg"_s, QDir::rootPath() + u"Musik/a.ogg"_s, other);
        received.record(u"Photos/a.jpg"_s, u"/x/Photos/a.jpg"_s, other);
        received.record(u"Photos/b.jpg"_s, u"/x/Photos/b.jpg"_s, other);
        received.record(u"single.txt"_s, u"/x/single.txt"_s, other);
        received.record(u"Apps/Tool/x.dll"_s, u"/tmp/x.dll"_s, other);

        QCOMPARE(received.counts, (QMap<QString, int>{{u"Documents"_s, 2}, {u"Music"_s, 2}, {other, 3}}));
        QCOMPARE(received.paths.value(u"Documents"_s), home + u"/Documents"_s);
        QCOMPARE(received.paths.value(u"Music"_s),
                 QDir::rootPath()); // no folder on the way up is named for it
        QCOMPARE(received.paths.value(other), standard(QStandardPaths::DownloadLocation) + u"/Zandrove"_s);
        QCOMPARE(received.folders, (QMap<QString, QStringList>{{other, {u"Photos"_s, u"single.txt"_s}}}));
    }

    void conflicts_data()
    {
        addColumns<QString, int, QString, bool>("name", "policy", "result", "stays");
        const int rename = int(ConflictPolicy::Rename);
        QTest::newRow("skip") << u"report.pdf"_s << int(ConflictPolicy::Skip) << QString() << true;
        QTest::newRow("overwrite") << u"report.pdf"_s << int(ConflictPolicy::Overwrite) << u"report.pdf"_s
                                   << false;
        QTest::newRow("rename") << u"report.pdf"_s << rename << u"report_1.pdf"_s << true;
        QTest::newRow("rename, no suffix") << u"LICENSE"_s << rename << u"LICENSE_1"_s << true;
        QTest::newRow("rename, two suffixes")
            << u"archive.tar.gz"_s << rename << u"archive.tar_1.gz"_s << true;
        QTest::newRow("rename, percent signs") << u"50%3 %1.txt"_s << rename << u"50%3 %1_1.txt"_s << true;
        QTest::newRow("rename, first taken") << u"taken.txt"_s << rename << u"taken_2.txt"_s << true;
        QTest::newRow("another policy") << u"report.pdf"_s << 7 << u"report.pdf"_s << true;
    }
    void conflicts()
    {
        QFETCH(QString, name);
        QFETCH(int, policy);
        QFETCH(QString, result);
        QFETCH(bool, stays);
        const QTemporaryDir folder;
        touch(folder.filePath(name));
        touch(folder.filePath(u"taken_1.txt"_s));
        const QString resolved = resolveConflict(folder.filePath(name), policy);
        QCOMPARE(resolved, result.isEmpty() ? QString() : folder.filePath(result));
        QCOMPARE(QFile::exists(folder.filePath(name)), stays);
    }

    void hostileNumbersReadAsBounds_data()
    {
        addColumns<QByteArray, qint64, quint32>("value", "size", "checksum");
        constexpr qint64 Most = qint64(1) << 53;
        QTest::newRow("above 31 bits") << QByteArray("3000000000") << qint64(3000000000) << 3000000000u;
        QTest::newRow("above 32 bits")
            << QByteArray("5000000000") << qint64(5000000000) << quint32(5000000000);
        QTest::newRow("huge") << QByteArray("1e300") << Most << 0u;
        QTest::newRow("negative") << QByteArray("-5") << qint64(0) << quint32(-5);
        QTest::newRow("text") << QByteArray("\"x\"") << qint64(0) << 0u;
        QTest::newRow("object") << QByteArray("{}") << qint64(0) << 0u;
    }
    void hostileNumbersReadAsBounds()
    {
        QFETCH(QByteArray, value);
        const QByteArray payload =
            "{\"fileSize\":" + value + ",\"totalSize\":" + value + ",\"checksum\":" + value + "}";
        QTEST(TransferMessages::Header::fromPayload(payload).fileSize, "size");
        QTEST(TransferMessages::Start::fromPayload(payload).totalSize, "size");
        QTEST(TransferMessages::End::fromPayload(payload).checksum, "checksum");
        for (const QByteArray &broken : {QByteArray("[1]"), QByteArray("{"), QByteArray()})
            QCOMPARE(TransferMessages::Header::fromPayload(broken).taskId, 0);
    }

    void progressStaysInRange()
    {
        FileProgress progress;
        progress.transferredBytes = 5;
        progress.bytesPerSecond = 1e-9;
        QCOMPARE(progress.toRecord().overallPercent, 0);
        progress.totalBytes = std::numeric_limits<qint64>::max();
        QCOMPARE(progress.toRecord().remainingSeconds, std::numeric_limits<int>::max());
        progress.totalBytes = 9;
        QCOMPARE(progress.toRecord().overallPercent, 55);
        QCOMPARE(filePercent(0, 0), 100);
        QCOMPARE(saturatingAdd(std::numeric_limits<qint64>::max() - 1, 5),
                 std::numeric_limits<qint64>::max());
    }
};

ZANDROVE_TEST(PipelineRulesTest)
#include "PipelineRulesTest.moc"
