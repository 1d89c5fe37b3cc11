#include "PipelineTests.h"

#include "pipeline/FileReceiverWorker.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace Zandrove;

class FileReceiverTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_root;
    std::unique_ptr<FileReceiverWorker> m_receiver;
    QList<ReceivedFile> m_settled;

    /// What lies in the folder, hidden files included.
    [[nodiscard]] QStringList names() const
    {
        return QDir(path({})).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    [[nodiscard]] QString path(const QString &name) const { return m_root->filePath(u"Photos/"_s + name); }
    void header(const QString &name, qint64 size = 3, int taskId = 1)
    {
        m_receiver->onFileHeader(u"Photos/"_s + name, size, 0, taskId);
    }
    void data(const QByteArray &bytes, int taskId = 1)
    {
        m_receiver->onFileData(chunkPayload(taskId, bytes + "behind it", 0, qint32(bytes.size())));
    }
    void end(const QString &name, quint32 sum, int taskId = 1)
    {
        m_receiver->onFileEnd(u"Photos/"_s + name, sum, taskId);
    }
    void file(const QString &name, const QByteArray &content, int taskId = 1)
    {
        header(name, content.size(), taskId);
        if (!content.isEmpty())
            data(content, taskId);
        end(name, checksumOf(content), taskId);
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

private Q_SLOTS:
    void init()
    {
        m_receiver.reset();
        m_root = std::make_unique<QTemporaryDir>();
        m_receiver = std::make_unique<FileReceiverWorker>();
        m_receiver->setDestinationRoot(m_root->path());
        m_settled.clear();
        connect(
            m_receiver.get(), &FileReceiverWorker::taskSettled, this,
            [this](const ReceivedFile &file) { m_settled.append(file); }, Qt::DirectConnection);
        m_receiver->startReceiving();
    }

    void filesArriveWhole()
    {
        const QByteArray big = someBytes(4194304 + 1000);
        file(u"empty"_s, {});
        header(u"deep/er/big"_s, big.size(), 2);
        for (qint64 offset = 0; offset < big.size(); offset += 524288)
            m_receiver->onFileData(chunkPayload(2, big.mid(offset, 524288), offset));
        end(u"deep/er/big"_s, checksumOf(big), 2);
        QCOMPARE(contentOf(path(u"empty"_s)), QByteArray());
        QVERIFY(contentOf(path(u"deep/er/big"_s)) == big);
        QCOMPARE(m_receiver->receivedFolders().counts.value(u"Received Files"_s), 2);
        QCOMPARE(complete(), (QVariantList{2, 0, 0, qlonglong(big.size())}));
    }

    void wrongChecksumRemovesTheFile()
    {
        QSignalSpy failed(m_receiver.get(), &FileReceiverWorker::fileFailed);
        header(u"a"_s);
        data("abc");
        end(u"a"_s, checksumOf("abd"));
        QCOMPARE(failed.takeFirst(), (QVariantList{u"a"_s, u"Checksum mismatch"_s}));
        QVERIFY(!QFile::exists(path(u"a"_s)));
        QCOMPARE(complete(), (QVariantList{0, 1, 0, 3ll}));
    }

    void skippedFileStaysUntouched()
    {
        writeFile(path(u"mine"_s), "my own words");
        writeFile(path(u"empty"_s), {});
        file(u"mine"_s, "abc");
        file(u"empty"_s, {}, 2);
        // Skipped and failed; the empty one skipped and good.
        QCOMPARE(complete(), (QVariantList{1, 1, 2, 0ll}));
        QCOMPARE(contentOf(path(u"mine"_s)), "my own words");
    }

    void strayEndSparesTheFileBefore()
    {
        file(u"good"_s, "abc");
        end(u"good"_s, 12345);
        end(u"other"_s, 12345, 9);
        QCOMPARE(contentOf(path(u"good"_s)), "abc");
        QCOMPARE(complete(), (QVariantList{1, 2, 0, 3ll}));
    }

    void repeatedHeaderChangesNothing()
    {
        header(u"a"_s);
        data("ab");
        header(u"a"_s);
        data("c");
        end(u"a"_s, checksumOf("abc"));
        QCOMPARE(contentOf(path(u"a"_s)), "abc");
    }

    void displacedFileLeaksNothingIntoTheNext()
    {
        header(u"half"_s, 6, 1);
        data("abc");
        file(u"next"_s, "xyz", 2);
        QCOMPARE(contentOf(path(u"next"_s)), "xyz");
        QCOMPARE(m_settled.takeFirst().reason, u"It did not arrive whole"_s);
        QCOMPARE(names(), (QStringList{u"next"_s}));
    }

    void badChunksAreDropped_data()
    {
        constexpr int Limit = 10485760;
        addColumns<QByteArray, qint64>("payload", "taken");
        const auto row = [](const char *name, const QByteArray &payload, qint64 taken) {
            QTest::newRow(name) << payload << taken;
        };
        row("no header", QByteArray(15, 'x'), 0);
        row("negative size", chunkPayload(1, "abc", 0, -1), 0);
        row("more than there is", chunkPayload(1, "abc", 0, 4), 0);
        row("empty", chunkPayload(1, {}), 0);
        row("largest", chunkPayload(1, QByteArray(Limit, 'x')), Limit);
        row("too large", chunkPayload(1, QByteArray(Limit + 1, 'x')), 0);
        row("another file's", chunkPayload(2, "abc"), 0);
        row("wrong offset, taken as it comes", chunkPayload(1, "abc", 99), 3);
        row("bytes behind the chunk", chunkPayload(1, "abcdef", 0, 3), 3);
    }
    void badChunksAreDropped()
    {
        QFETCH(QByteArray, payload);
        header(u"a"_s, 100);
        m_receiver->onFileData(payload);
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
        const QString target = m_receiver->destinationPath(relativePath).section(QChar(0), 0, 0);
        const QString bystander = writeFile(QDir::cleanPath(target), "bystander");
        QSignalSpy failed(m_receiver.get(), &FileReceiverWorker::fileFailed);
        m_receiver->onFileHeader(relativePath, 3, 0, 1);
        QCOMPARE(failed.takeFirst().at(1).toString(), u"Failed to create file"_s);
        data("abc");
        m_receiver->onFileEnd(relativePath, checksumOf("abc"), 1);
        QCOMPARE(complete(), (QVariantList{0, 2, 0, 0ll}));
        QCOMPARE(contentOf(bystander), "bystander");
        QFile::remove(bystander);
    }

    void unwritableFolderCostsThatFile()
    {
        writeFile(path(u"block"_s), "a file where a folder should be");
        file(u"block/a"_s, "abc");
        file(u"good"_s, "abc", 2);
        const QJsonObject answer = ack();
        QCOMPARE(answer.value(u"failedCount"_s).toInt(), 2); // at the header and at the end
        QCOMPARE(answer.value(u"success"_s).toBool(), false);
        QCOMPARE(complete(), (QVariantList{1, 2, 0, 3ll}));
    }

    void standingFileIsCompared_data()
    {
        addColumns<QByteArray, QByteArray, bool>("standing", "sent", "identical");
        QTest::newRow("identical") << "abc"_ba
                                   << "abc"_ba << true;
        QTest::newRow("different") << "abd"_ba
                                   << "abc"_ba << false;
        QTest::newRow("longer") << "abcd"_ba
                                << "abc"_ba << false;
        QTest::newRow("both empty") << ""_ba
                                    << ""_ba << true;
        QTest::newRow("empty one sent") << "abc"_ba
                                        << ""_ba << false;
    }
    void standingFileIsCompared()
    {
        QFETCH(QByteArray, standing);
        QFETCH(QByteArray, sent);
        QFETCH(bool, identical);
        for (const bool meanwhile : {false, true}) {
            const QString name = meanwhile ? u"late"_s : u"early"_s;
            if (!meanwhile)
                writeFile(path(name), standing);
            header(name, sent.size(), meanwhile);
            if (meanwhile)
                writeFile(path(name), standing);
            if (!sent.isEmpty())
                data(sent, meanwhile);
            end(name, checksumOf(sent), meanwhile);
            QCOMPARE(m_settled.takeLast().outcome,
                     identical ? ItemOutcome::WasThere : ItemOutcome::WasDifferent);
            const QJsonObject answer = ack();
            QCOMPARE(answer.value(u"failedCount"_s).toInt(), sent.isEmpty() ? 0 : 1);
            const QJsonObject named = answer.value(u"failedFiles"_s).toArray().first().toObject();
            QCOMPARE(named.value(u"skipped"_s), QJsonValue(true));
            QCOMPARE(named.value(u"identical"_s), QJsonValue(identical));
            QCOMPARE(contentOf(path(name)), standing);
        }
        QCOMPARE(names(), (QStringList{u"early"_s, u"late"_s}));
    }

    void onlyOverwritingReplacesAndOnlyAtTheEnd()
    {
        writeFile(path(u"a"_s), "old");
        m_receiver->setConflictPolicy(int(ConflictPolicy::Overwrite));
        header(u"a"_s);
        data("new");
        QCOMPARE(contentOf(path(u"a"_s)), "old");
        end(u"a"_s, checksumOf("new"));
        QCOMPARE(contentOf(path(u"a"_s)), "new");
        m_receiver->setConflictPolicy(int(ConflictPolicy::Rename));
        header(u"b"_s, 3, 2);
        data("new", 2);
        writeFile(path(u"b"_s), "old");
        end(u"b"_s, checksumOf("new"), 2);
        QCOMPARE(contentOf(path(u"b"_s)), "old");
        QCOMPARE(contentOf(path(u"b_1"_s)), "new");
        QCOMPARE(names(), (QStringList{u"a"_s, u"b"_s, u"b_1"_s}));
    }

    void changedFileIsRemoved()
    {
        header(u"a"_s);
        data("abc");
        m_receiver->onFileEnd(u"Photos/a"_s, checksumOf("abc"), 1, true);
        QCOMPARE(m_settled.first().reason, u"changed while it was sent"_s);
        QCOMPARE(names(), QStringList());
    }

    void leftoversOfTheDeadAreRemoved()
    {
        const QString dead = u".x.7fffffff-0123456789abcdef-1.zandrove-part"_s;
        for (const QString &name : {dead, u".mine.zandrove-part"_s})
            writeFile(path(name), "x");
        const QString longName = QString(80, QChar(0x65e5)) + u".txt"_s; // 244 bytes
        header(longName);
        FileReceiverWorker other; // of another program: it spares what is being written here
        other.setDestinationRoot(m_root->path());
        other.startReceiving();
        other.onFileHeader(u"Photos/b"_s, 0, 0, 1);
        other.onFileEnd(u"Photos/b"_s, 0, 1);
        data("abc");
        end(longName, checksumOf("abc"));
        QCOMPARE(names(), (QStringList{u".mine.zandrove-part"_s, u"b"_s, longName}));
        file(dead, "abc", 2); // would be taken for a leftover
        QCOMPARE(m_settled.last().outcome, ItemOutcome::Failed);
    }

    void cancelRemovesTheOpenFileFromAnyThread()
    {
        file(u"good"_s, "abc");
        header(u"half"_s, 6, 2);
        data("abc", 2);
        m_receiver->cancel();
        QCOMPARE(names(), (QStringList{u"good"_s}));

        m_receiver->startReceiving();
        header(u"half"_s, 6, 3);
        QThread thread;
        m_receiver->moveToThread(&thread);
        m_receiver->cancel(); // from outside: left to the worker
        QCOMPARE(names().size(), 2);
        thread.start();
        thread.quit();
        QVERIFY(thread.wait(2000));
        m_receiver.reset(); // whatever the worker did not get to goes with it
        QCOMPARE(names(), (QStringList{u"good"_s}));
    }

    void answersCoverWhatCameSince()
    {
        const QJsonObject allGood{{u"batchId"_s, 7},     {u"isRequest"_s, false},
                                  {u"success"_s, true},  {u"successCount"_s, 0},
                                  {u"failedCount"_s, 0}, {u"failedFiles"_s, QJsonArray()}};
        QCOMPARE(ack(), allGood);
        header(u"a"_s);
        end(u"a"_s, 5);
        QCOMPARE(ack().value(u"failedFiles"_s).toArray(),
                 (QJsonArray{QJsonObject{{u"taskId"_s, 1},
                                         {u"relativePath"_s, u"Photos/a"_s},
                                         {u"error"_s, u"Checksum mismatch"_s}}}));
        QCOMPARE(ack(), allGood);
    }

    void totalsAddUp()
    {
        QSignalSpy progress(m_receiver.get(), &FileReceiverWorker::overallProgress);
        m_receiver->setTotalInfo(2, 40);
        m_receiver->setTotalInfo(1, 60);
        file(u"a"_s, QByteArray(50, 'x'));
        const auto record = progress.takeLast().first().value<TransferProgress>();
        QCOMPARE((QList<qint64>{record.totalItems, record.totalBytes, record.overallPercent,
                                record.completedItems}),
                 (QList<qint64>{3, 100, 50, 1}));
        QCOMPARE(record.currentFile, u"a"_s);
    }

    void roomIsComparedWithTheFirstBytes()
    {
        for (const qint64 first : {0, 1}) {
            FileReceiverWorker receiver;
            receiver.startReceiving();
            QSignalSpy tooMuch(&receiver, &FileReceiverWorker::spaceShort);
            receiver.setTotalInfo(1, first);
            receiver.setTotalInfo(1, qint64(1) << 60);
            QCOMPARE(tooMuch.size(), first == 0 ? 1 : 0);
        }
    }

    void inflowIsCountedDown()
    {
        QSignalSpy below(m_receiver.get(), &FileReceiverWorker::inflowBelowMark);
        const QByteArray bytes(1024, 'x');
        m_receiver->addInflow(FileReceiverWorker::InflowMark + bytes.size());
        m_receiver->onFileData(bytes);
        QCOMPARE(below.size(), 1);
        m_receiver->onFileData(bytes);
        QCOMPARE(below.size(), 1);
        QCOMPARE(m_receiver->inflow(), FileReceiverWorker::InflowMark - bytes.size());
    }
};

ZANDROVE_TEST(FileReceiverTest)
#include "FileReceiverTest.moc"
