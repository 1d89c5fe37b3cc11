#include "PipelineTests.h"

#include "peer/Protocol.h"
#include "pipeline/FileChecksum.h"
#include "pipeline/FileReceiverWorker.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

QByteArray chunk(int taskId, qint64 offset, const QByteArray &bytes, qint32 announced = -2)
{
    QByteArray payload(TransferMessages::ChunkHeader::Size, Qt::Uninitialized);
    TransferMessages::ChunkHeader{offset, announced == -2 ? qint32(bytes.size()) : announced, taskId}.writeTo(
        payload.data());
    return payload + bytes;
}

quint32 checksum(const QByteArray &bytes)
{
    FileChecksum sum;
    sum.update(bytes);
    return sum.value();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
}

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

class FileReceiverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_receiver.reset();
        m_root = std::make_unique<QTemporaryDir>();
        m_receiver = std::make_unique<FileReceiverWorker>();
        m_receiver->setDestinationRoot(m_root->path());
        m_receiver->startReceiving();
    }

    void filesArriveWhole()
    {
        const QByteArray big = someBytes(4194304 + 1000);
        header(u"empty"_s, 0, 1);
        end(u"empty"_s, 0, 1);
        header(u"deep/er/big"_s, big.size(), 2);
        qint64 offset = 0;
        while (offset < big.size()) {
            const QByteArray part = big.mid(offset, 524288);
            m_receiver->onFileData(chunk(2, offset, part));
            offset += part.size();
        }
        end(u"deep/er/big"_s, checksum(big), 2);
        QVERIFY(QFile::exists(path(u"empty"_s)));
        QVERIFY(contentOf(path(u"deep/er/big"_s)) == big);
        QCOMPARE(m_receiver->receivedFolders().counts.value(u"Received Files"_s), 2);
        QCOMPARE(complete(), (QVariantList{2, 0, 0, qlonglong(big.size())}));
    }

    void wrongChecksumRemovesTheFile()
    {
        header(u"a"_s);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        QSignalSpy failed(m_receiver.get(), &FileReceiverWorker::fileFailed);
        end(u"a"_s, checksum("abd"));
        QCOMPARE(failed.takeFirst(), (QVariantList{u"a"_s, u"Checksum mismatch"_s}));
        QVERIFY(!QFile::exists(path(u"a"_s)));
        QCOMPARE(complete(), (QVariantList{0, 1, 0, 3ll}));
    }

    void skippedFileStaysUntouched()
    {
        write(path(u"mine"_s), "my own words");
        write(path(u"empty"_s), {});
        header(u"mine"_s);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        end(u"mine"_s, checksum("abc"));
        QCOMPARE(contentOf(path(u"mine"_s)), "my own words");
        header(u"empty"_s, 0, 2);
        end(u"empty"_s, 0, 2);
        // Skipped and failed; the empty one skipped and good.
        QCOMPARE(complete(), (QVariantList{1, 1, 2, 0ll}));
        QCOMPARE(contentOf(path(u"mine"_s)), "my own words");
    }

    void strayEndSparesTheFileBefore()
    {
        header(u"good"_s);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        end(u"good"_s, checksum("abc"));
        end(u"good"_s, 12345);
        end(u"other"_s, 12345, 9);
        QCOMPARE(contentOf(path(u"good"_s)), "abc");
        QCOMPARE(complete(), (QVariantList{1, 2, 0, 3ll}));
    }

    void repeatedHeaderChangesNothing()
    {
        header(u"a"_s);
        m_receiver->onFileData(chunk(1, 0, "ab"));
        header(u"a"_s);
        m_receiver->onFileData(chunk(1, 2, "c"));
        end(u"a"_s, checksum("abc"));
        QCOMPARE(contentOf(path(u"a"_s)), "abc");
    }

    void displacedFileLeaksNothingIntoTheNext()
    {
        header(u"half"_s, 6, 1);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        header(u"next"_s, 3, 2);
        m_receiver->onFileData(chunk(2, 0, "xyz"));
        end(u"next"_s, checksum("xyz"), 2);
        QCOMPARE(contentOf(path(u"next"_s)), "xyz");
        QVERIFY(QFile::exists(path(u"half"_s)));
    }

    void badChunksAreDropped_data()
    {
        constexpr int Limit = 10485760;
        addColumns<QByteArray, qint64>("data", "taken");
        QTest::newRow("no header") << QByteArray(15, 'x') << 0ll;
        QTest::newRow("negative size") << chunk(1, 0, "abc", -1) << 0ll;
        QTest::newRow("more than there is") << chunk(1, 0, "abc", 4) << 0ll;
        QTest::newRow("empty") << chunk(1, 0, {}) << 0ll;
        QTest::newRow("largest") << chunk(1, 0, QByteArray(Limit, 'x')) << qint64(Limit);
        QTest::newRow("too large") << chunk(1, 0, QByteArray(Limit + 1, 'x')) << 0ll;
        QTest::newRow("another file's") << chunk(2, 0, "abc") << 0ll;
        QTest::newRow("wrong offset, taken as it comes") << chunk(1, 99, "abc") << 3ll;
        QTest::newRow("bytes behind the chunk") << chunk(1, 0, "abcdef", 3) << 3ll;
    }
    void badChunksAreDropped()
    {
        QFETCH(QByteArray, data);
        header(u"a"_s, 100);
        m_receiver->onFileData(data);
        QTEST(complete().at(3).toLongLong(), "taken");
    }

    void pathsThatLeadOutAreFailures_data()
    {
        addColumns<QString>("relativePath");
        QTest::newRow("up") << u"../out.txt"_s;
        QTest::newRow("up, from inside") << u"Photos/../../out.txt"_s;
        QTest::newRow("up, backslashes") << u"Photos\\..\\..\\out.txt"_s;
        QTest::newRow("up, from a standard folder") << u"Documents/../../out.txt"_s;
        QTest::newRow("up, from an application") << u"Apps/../../out.txt"_s;
        QTest::newRow("nul") << u"Photos/out.txt"_s + QChar(0) + u"x"_s;
    }
    void pathsThatLeadOutAreFailures()
    {
        QFETCH(QString, relativePath);
        m_receiver->setConflictPolicy(int(ConflictPolicy::Overwrite));
        const QString bystander = QDir::cleanPath(m_receiver->destinationPath(relativePath));
        if (!relativePath.contains(QChar(0)))
            write(bystander, "bystander");
        QSignalSpy failed(m_receiver.get(), &FileReceiverWorker::fileFailed);
        m_receiver->onFileHeader(relativePath, 3, 0, 1);
        QCOMPARE(failed.takeFirst().at(1).toString(), u"Failed to create file"_s);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        m_receiver->onFileEnd(relativePath, checksum("abc"), 1);
        QCOMPARE(complete(), (QVariantList{0, 2, 0, 0ll}));
        if (!relativePath.contains(QChar(0))) {
            QCOMPARE(contentOf(bystander), "bystander");
            QFile::remove(bystander);
        }
    }

    void unwritableFolderCostsThatFile()
    {
        write(m_root->filePath(u"Photos/block"_s), "a file where a folder should be");
        header(u"block/a"_s);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        end(u"block/a"_s, checksum("abc"));
        header(u"good"_s, 3, 2);
        m_receiver->onFileData(chunk(2, 0, "abc"));
        end(u"good"_s, checksum("abc"), 2);
        const QJsonObject answer = ack();
        QCOMPARE(answer.value(u"failedCount"_s).toInt(), 2); // at the header and at the end
        QCOMPARE(answer.value(u"success"_s).toBool(), false);
        QCOMPARE(complete(), (QVariantList{1, 2, 0, 3ll}));
    }

    void writeErrorCostsThatFile()
    {
        if (!QFile::exists(u"/dev/full"_s))
            QSKIP("no device here that is always full");
        QVERIFY(QDir(m_root->path()).mkpath(u"Photos"_s));
        QVERIFY(QFile::link(u"/dev/full"_s, path(u"full"_s)));
        m_receiver->setConflictPolicy(-1); // opens what is there
        header(u"full"_s);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        end(u"full"_s, checksum("abc"));
        QCOMPARE(complete(), (QVariantList{0, 1, 0, 3ll}));
    }

    void cancelRemovesTheOpenFileFromAnyThread()
    {
        header(u"good"_s, 3, 1);
        m_receiver->onFileData(chunk(1, 0, "abc"));
        end(u"good"_s, checksum("abc"), 1);
        header(u"half"_s, 6, 2);
        m_receiver->onFileData(chunk(2, 0, "abc"));
        m_receiver->cancel();
        QVERIFY(!QFile::exists(path(u"half"_s)));
        QVERIFY(QFile::exists(path(u"good"_s)));

        m_receiver->startReceiving();
        header(u"half"_s, 6, 3);
        QThread thread;
        m_receiver->moveToThread(&thread);
        m_receiver->cancel(); // from outside: left to the worker
        QVERIFY(QFile::exists(path(u"half"_s)));
        thread.start();
        thread.quit();
        QVERIFY(thread.wait(2000));
        m_receiver.reset(); // whatever the worker did not get to goes with it
        QVERIFY(!QFile::exists(path(u"half"_s)));
        QVERIFY(QFile::exists(path(u"good"_s)));
    }

    void answersCoverWhatCameSince()
    {
        QCOMPARE(ack(), (QJsonObject{{u"batchId"_s, 7},
                                     {u"isRequest"_s, false},
                                     {u"success"_s, true},
                                     {u"successCount"_s, 0},
                                     {u"failedCount"_s, 0},
                                     {u"failedFiles"_s, QJsonArray()}}));
        header(u"a"_s);
        end(u"a"_s, 5);
        const QJsonArray failed = ack().value(u"failedFiles"_s).toArray();
        QCOMPARE(failed, (QJsonArray{QJsonObject{{u"taskId"_s, 1},
                                                 {u"relativePath"_s, u"Photos/a"_s},
                                                 {u"error"_s, u"Checksum mismatch"_s}}}));
        QCOMPARE(ack().value(u"success"_s).toBool(), true);
    }

    void totalsAddUp()
    {
        QSignalSpy progress(m_receiver.get(), &FileReceiverWorker::overallProgress);
        m_receiver->setTotalInfo(2, 40);
        m_receiver->setTotalInfo(1, 60);
        header(u"a"_s, 50);
        m_receiver->onFileData(chunk(1, 0, QByteArray(50, 'x')));
        end(u"a"_s, checksum(QByteArray(50, 'x')));
        const auto record = progress.takeLast().first().value<TransferProgress>();
        QCOMPARE(record.totalItems, 3);
        QCOMPARE(record.totalBytes, 100);
        QCOMPARE(record.overallPercent, 50);
        QCOMPARE(record.completedItems, 1);
        QCOMPARE(record.currentFile, u"a"_s);
    }

    void inflowIsCountedDown()
    {
        QSignalSpy below(m_receiver.get(), &FileReceiverWorker::inflowBelowMark);
        const QByteArray data(1024, 'x');
        m_receiver->addInflow(FileReceiverWorker::InflowMark + data.size());
        m_receiver->onFileData(data);
        QCOMPARE(below.size(), 1);
        m_receiver->onFileData(data);
        QCOMPARE(below.size(), 1);
        QCOMPARE(m_receiver->inflow(), FileReceiverWorker::InflowMark - data.size());
    }

private:
    QString path(const QString &name) const { return m_root->filePath(u"Photos/"_s + name); }
    void header(const QString &name, qint64 size = 3, int taskId = 1)
    {
        m_receiver->onFileHeader(u"Photos/"_s + name, size, 0, taskId);
    }

    void end(const QString &name, quint32 sum, int taskId = 1)
    {
        m_receiver->onFileEnd(u"Photos/"_s + name, sum, taskId);
    }

    QJsonObject ack()
    {
        QSignalSpy sent(m_receiver.get(), &FileReceiverWorker::requestSendCommand);
        m_receiver->onBatchAckRequest(7, 0, 0);
        return QJsonDocument::fromJson(sent.takeFirst().at(1).toByteArray()).object();
    }

    /// success, failed, skipped, bytes
    QVariantList complete()
    {
        QSignalSpy completed(m_receiver.get(), &FileReceiverWorker::allCompleted);
        m_receiver->onTransferComplete();
        return completed.takeFirst();
    }

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<FileReceiverWorker> m_receiver;
};

ZANDROVE_TEST(FileReceiverTest)
#include "FileReceiverTest.moc"
