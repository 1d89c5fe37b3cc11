#include "PipelineTests.h"

#include "pipeline/BatchPlanner.h"
#include "pipeline/DestinationGuard.h"
#include "pipeline/DestinationMap.h"
#include "pipeline/FileProgress.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/TaskList.h"

#include <QProcess>
#include <QStandardPaths>

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

/// A planner of batches, and the requests it makes as texts: "2: 10-11, 5 bytes", with "alone" for one that
/// nobody waits for.
struct Plan
{
    BatchPlanner planner;
    int nextTaskId = 0;

    QString after(qint64 bytes, bool isLast, bool failed = false)
    {
        if (failed)
            planner.addFailed();
        else
            planner.addSent(bytes);
        return close(bytes, isLast);
    }
    QString close(qint64 bytes, bool isLast)
    {
        const auto request = planner.closeAfter(nextTaskId++, bytes, isLast);
        if (!request)
            return {};
        return u"%1: %2-%3, %4 bytes"_s.arg(request->batchId)
                   .arg(request->startTaskId)
                   .arg(request->endTaskId)
                   .arg(request->bytes) +
               (request->waits ? u""_s : u" alone"_s);
    }
};

} // namespace

class PipelineRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksumFollowsItsTable()
    {
        QCOMPARE(checksumOf({}), 0u);
        QCOMPARE(checksumOf("123456789"), 0xCBF43926u);
        // The first byte meets the index 0xFF ^ byte: one input for each altered entry,
        // alone and with a tail.
        for (const int index : {111, 237, 238, 239, 240, 241, 242, 243}) {
            for (const QByteArray &tail : {QByteArray(), QByteArray("tail")}) {
                const QByteArray bytes = char(0xFF ^ index) + tail;
                QCOMPARE(checksumOf(bytes), referenceChecksum(bytes));
            }
        }
        const QByteArray bytes = someBytes(100000);
        QCOMPARE(checksumOf(bytes), referenceChecksum(bytes));
        FileChecksum sum;
        for (qsizetype at = 0; at < bytes.size(); at += 7)
            sum.update(bytes.mid(at, 7));
        QCOMPARE(sum.value(), checksumOf(bytes));
    }

    void batchesCloseByCountBytesAndEnd()
    {
        Plan plan;
        for (int id = 0; id < 9; ++id)
            QCOMPARE(plan.after(1, false), QString());
        QCOMPARE(plan.after(1, false), u"1: 0-9, 10 bytes"_s);
        QCOMPARE(plan.after(BatchPlanner::MaxBytes - 1, false), QString());
        QCOMPARE(plan.after(1, false), u"2: 10-11, 52428800 bytes"_s);
        QCOMPARE(plan.close(1, true), QString()); // nothing in the open batch
        QCOMPARE(plan.after(5, true), u"3: 12-13, 5 bytes"_s);

        Plan failures; // they count as files and not by their bytes
        for (int id = 0; id < 9; ++id)
            QCOMPARE(failures.after(BatchPlanner::MaxBytes, false, true), QString());
        QCOMPARE(failures.after(BatchPlanner::MaxBytes, false, true), u"1: 0-9, 0 bytes"_s);
    }

    void bigFileIsAskedForAlone()
    {
        Plan plan;
        QCOMPARE(plan.after(10, false), QString());
        QCOMPARE(plan.after(BatchPlanner::SingleFileBytes, false), u"1: 0-1, 1073741834 bytes"_s);
        QVERIFY(!plan.planner.cutBefore(BatchPlanner::SingleFileBytes + 1)); // no batch is open
        QCOMPARE(plan.after(10, false), QString());
        const auto cut = plan.planner.cutBefore(BatchPlanner::SingleFileBytes + 1);
        QVERIFY(cut && cut->startTaskId == 2 && cut->endTaskId == 2 && cut->bytes == 10 && !cut->waits);
        QCOMPARE(plan.after(BatchPlanner::SingleFileBytes + 1, true), u"3: 3-3, 1073741825 bytes alone"_s);
        QCOMPARE(plan.after(1, true), u"4: 4-4, 1 bytes"_s);
    }

    void ackTimeoutGrowsWithTheBatch()
    {
        constexpr qint64 GiB = qint64(1) << 30;
        QCOMPARE(batchAckTimeout(GiB - 1), 300000ms);
        QCOMPARE(batchAckTimeout(GiB + 52428799), 420000ms);
        QCOMPARE(batchAckTimeout(3 * GiB), 660000ms);
    }

    void taskRoots_data()
    {
        addColumns<QString, QString>("folder", "root");
        QTest::newRow("standard folder") << u"/home/u/Documents"_s << u"Documents"_s;
        QTest::newRow("other case") << u"/HOME/u/documents/Work Plans"_s << u"Documents/Work Plans"_s;
        QTest::newRow("deep") << u"/home/u/Documents/a/B"_s << u"Documents/a/B"_s;
        QTest::newRow("trailing slash") << u"/home/u/Documents/a/"_s << u"Documents/a"_s;
        QTest::newRow("name that only begins alike") << u"/home/u/Documents2/a"_s << u"a"_s;
        QTest::newRow("lower case is longer") << u"/home/İ/Pictures/Trip"_s << u"Pictures/Trip"_s;
        QTest::newRow("elsewhere") << u"/data/Music"_s << u"Music"_s;
        QTest::newRow("place of applications") << u"/data/apps"_s << u"apps_"_s;
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
        for (const QString &name : {u"/a.jpg"_s, u"/2020/b.jpg"_s, u"/.hidden/c.jpg"_s})
            writeFile(top + name, "x");
        if (canLink())
            QVERIFY(QFile::link(top, top + u"/2020/loop"_s));
        const auto folder = [](const QString &path, bool selected = true) {
            FolderInfo info;
            info.path = path;
            info.selected = selected;
            return info;
        };
        writeFile(scratch.filePath(u"other/Photos/a.jpg"_s), "another");
        int nextTaskId = 5;
        const auto [tasks, failures] =
            taskListFor({folder(top), folder(top), folder(top + u"/2020"_s), folder(top, false),
                         folder(top + u"/missing"_s), folder(scratch.filePath(u"other/Photos"_s))},
                        nextTaskId);
        QCOMPARE(failures.size(), 2);
        QCOMPARE(failures.first().path, top + u"/missing"_s);
        QCOMPARE(failures.last().path, scratch.filePath(u"other/Photos/a.jpg"_s));
        QCOMPARE(failures.last().reason, u"Another ticked folder has a file of this name"_s);
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

    void whatCannotBeSentIsAFailure()
    {
        if (!canLink() || QFile::encodeName(u"\u00e4"_s).size() != 2)
            QSKIP("names are no bytes here");
        const QTemporaryDir scratch;
        writeFile(scratch.filePath(u"good"_s), "x");
        writeFile(scratch.filePath(u"back\\slash"_s), "xy");
        QVERIFY(QProcess::execute(u"sh"_s, {u"-c"_s,
                                            u"cd \"$1\" && : > \"$(printf 'b\\344d')\" && mkdir locked && "
                                            "chmod 0 locked && ln -s missing broken && mkfifo pipe"_s,
                                            u"sh"_s, scratch.path()}) == 0);
        FolderInfo folder;
        folder.path = scratch.path();
        folder.selected = true;
        int nextTaskId = 0;
        const auto [tasks, failures] = taskListFor({folder}, nextTaskId);
        QCOMPARE(tasks.size(), 1);
        QStringList names;
        for (const TaskFailure &failure : failures)
            names.append(QFileInfo(failure.path).fileName());
        names.sort();
        QStringList expected{u"back\\slash"_s,
                             u"b\ufffd"
                             "d"_s,
                             u"locked"_s};
        if (QDir(scratch.filePath(u"locked"_s)).isReadable())
            expected.removeLast(); // nothing is locked for this user
        QCOMPARE(names, expected);
        QFile::setPermissions(scratch.filePath(u"locked"_s),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void filesAreFiledByTheirFirstFolder()
    {
        const auto place = [](const QString &relativePath) {
            return destinationFor(relativePath, u"/dest"_s);
        };
        QCOMPARE(place(u"Documents/a/b.txt"_s), standard(QStandardPaths::DocumentsLocation) + u"/a/b.txt"_s);
        QCOMPARE(place(u"DESKTOP/a.txt"_s), standard(QStandardPaths::DesktopLocation) + u"/a.txt"_s);
        QCOMPARE(place(u"videos\\x\\a.mp4"_s), standard(QStandardPaths::MoviesLocation) + u"/x/a.mp4"_s);
        QCOMPARE(place(u"Photos/a.jpg"_s), u"/dest/Photos/a.jpg"_s);
        QCOMPARE(place(u"Documents"_s), u"/dest/Documents"_s);
        QCOMPARE(place(u"/Documents/a"_s), u"/dest//Documents/a"_s);
        QCOMPARE(place(u"aPPs/Tool/x.dll"_s), receivedAppsFolder() + u"/Tool/x.dll"_s);
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
        QDir(zandrove).removeRecursively();
        QVERIFY(QFile::link(elsewhere.path(), zandrove));
        QVERIFY(!isSafeDestination(path, destinationFor(path, {})));
        QVERIFY(!removeReceived(receivedAppsFolder()));
        QVERIFY(QFile::remove(zandrove));
    }

    void receivedFilesAreReportedByCategory()
    {
        const QString other = u"Received Files"_s;
        ReceivedFolders received;
        const QString home = QDir::homePath();
        received.record(u"documents/x/a.txt"_s, home + u"/Documents/x/a.txt"_s, other);
        received.record(u"Documents/b.txt"_s, home + u"/Documents/b.txt"_s, other);
        received.record(u"Music/empty"_s, {}, other); // an empty file that was left alone
        received.record(u"Music/a.ogg"_s, QDir::rootPath() + u"Musik/a.ogg"_s, other);
        for (const QString &place : {u"Photos/a.jpg"_s, u"Photos/b.jpg"_s, u"single.txt"_s})
            received.record(place, u"/x/"_s + place, other);
        received.record(u"Apps/Tool/x.dll"_s, u"/tmp/x.dll"_s, other);

        QCOMPARE(received.counts, (QMap<QString, int>{{u"Documents"_s, 2}, {u"Music"_s, 2}, {other, 3}}));
        // No folder on the way up is named for the music.
        const QString downloads = standard(QStandardPaths::DownloadLocation) + u"/Zandrove"_s;
        QCOMPARE(received.paths, (QMap<QString, QString>{{u"Documents"_s, home + u"/Documents"_s},
                                                         {u"Music"_s, QDir::rootPath()},
                                                         {other, downloads}}));
        QCOMPARE(received.folders, (QMap<QString, QStringList>{{other, {u"Photos"_s, u"single.txt"_s}}}));
    }

    void conflicts_data()
    {
        addColumns<QString, int, QString>("name", "policy", "result");
        const auto row = [](const char *what, const QString &name, int policy, const QString &result) {
            QTest::newRow(what) << name << policy << result;
        };
        const int rename = int(ConflictPolicy::Rename);
        row("skip", u"report.pdf"_s, int(ConflictPolicy::Skip), {});
        row("overwrite", u"report.pdf"_s, int(ConflictPolicy::Overwrite), u"report.pdf"_s);
        row("rename", u"report.pdf"_s, rename, u"report_1.pdf"_s);
        row("rename, no suffix", u"LICENSE"_s, rename, u"LICENSE_1"_s);
        row("rename, two suffixes", u"archive.tar.gz"_s, rename, u"archive.tar_1.gz"_s);
        row("rename, percent signs", u"50%3 %1.txt"_s, rename, u"50%3 %1_1.txt"_s);
        row("rename, first taken", u"taken.txt"_s, rename, u"taken_2.txt"_s);
        row("another policy", u"report.pdf"_s, 7, u"report.pdf"_s);
    }
    void conflicts()
    {
        QFETCH(QString, name);
        QFETCH(int, policy);
        QFETCH(QString, result);
        const QTemporaryDir folder;
        const QString file = writeFile(folder.filePath(name), "x");
        writeFile(folder.filePath(u"taken_1.txt"_s), "x");
        QCOMPARE(resolveConflict(file, policy), result.isEmpty() ? result : folder.filePath(result));
        QCOMPARE(contentOf(file), "x"); // what is replaced stays until the other is whole
    }

    void hostileNumbersReadAsBounds_data()
    {
        addColumns<QByteArray, qint64, quint32>("value", "size", "checksum");
        QTest::newRow("above 31 bits") << "3000000000"_ba << qint64(3000000000) << 3000000000u;
        QTest::newRow("above 32 bits") << "5000000000"_ba << qint64(5000000000) << quint32(5000000000);
        QTest::newRow("huge") << "1e300"_ba << (qint64(1) << 53) << 0u;
        QTest::newRow("negative") << "-5"_ba << qint64(0) << quint32(-5);
        QTest::newRow("text") << "\"x\""_ba << qint64(0) << 0u;
        QTest::newRow("object") << "{}"_ba << qint64(0) << 0u;
    }
    void hostileNumbersReadAsBounds()
    {
        QFETCH(QByteArray, value);
        const QByteArray payload =
            "{\"fileSize\":" + value + ",\"totalSize\":" + value + ",\"checksum\":" + value + "}";
        QTEST(TransferMessages::Header::fromPayload(payload).fileSize, "size");
        QTEST(TransferMessages::Start::fromPayload(payload).totalSize, "size");
        QTEST(TransferMessages::End::fromPayload(payload).checksum, "checksum");
        for (const QByteArray &broken : {"[1]"_ba, "{"_ba, ""_ba})
            QCOMPARE(TransferMessages::Header::fromPayload(broken).taskId, 0);
    }

    void whatIsNotSaidStaysUnknown()
    {
        const auto files = TransferMessages::Ack::fromPayload(R"({"failedFiles": [{"skipped": true},
            {"skipped": true, "identical": false}, {"skipped": true, "identical": 1}, {"identical": true}]})")
                               .namedFiles;
        QCOMPARE(files.size(), 4);
        QVERIFY(files[1].identical == false && !files[0].identical && !files[2].identical &&
                !files[3].identical);
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
