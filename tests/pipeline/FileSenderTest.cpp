#include "PipelineTests.h"

#include "peer/Protocol.h"
#include "pipeline/FileSenderWorker.h"
#include "support/Json.h"

#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Protocol::MessageType;

namespace {

QJsonObject json(const QByteArray &payload)
{
    return parseJsonObject(payload).value_or(QJsonObject());
}

} // namespace

class FileSenderTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileSenderWorker> m_sender;
    std::unique_ptr<QSignalSpy> m_completed;
    QMap<MessageType, QByteArrayList> m_sent; ///< payloads
    QThread m_thread;
    int m_nextTaskId = 0;

    FileTransferTask taskFor(const QString &name, const QByteArray &content)
    {
        FileTransferTask task;
        task.taskId = m_nextTaskId++;
        task.sourcePath = writeFile(m_folder->filePath(name), content);
        task.relativePath = u"Photos/"_s + name;
        task.fileSize = content.size();
        return task;
    }

    /// Has `act` called with the type and the payload of each message, on the sender's thread.
    template <typename Act>
    void onMessage(Act act)
    {
        connect(
            m_sender.get(), &FileSenderWorker::requestSendCommand, this,
            [act](int type, const QByteArray &payload) { act(MessageType(type), payload); },
            Qt::DirectConnection);
    }

    void answerBatches(bool success)
    {
        onMessage([this, success](MessageType type, const QByteArray &payload) {
            if (type == MessageType::FileAck)
                m_sender->onBatchAckReceived(json(payload).value(u"batchId"_s).toInt(), success, {});
        });
    }

    /// Each task is a list by itself.
    void sendOnAThread(const QList<FileTransferTask> &tasks)
    {
        m_sender->moveToThread(&m_thread);
        m_thread.start();
        for (const FileTransferTask &task : tasks)
            QMetaObject::invokeMethod(m_sender.get(), [this, task] { m_sender->startSending({task}); });
    }
    bool endThread()
    {
        m_thread.quit();
        return m_thread.wait(2000);
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_sender = std::make_unique<FileSenderWorker>();
        m_completed = std::make_unique<QSignalSpy>(m_sender.get(), &FileSenderWorker::allCompleted);
        m_sent.clear();
        m_nextTaskId = 0;
        onMessage([this](MessageType type, const QByteArray &payload) { m_sent[type].append(payload); });
    }

    void cleanup() { m_sender.reset(); }

    void filesCrossInChunks()
    {
        answerBatches(true);
        const qint64 chunk = FileSenderWorker::ChunkBytes;
        const QByteArrayList contents{{}, someBytes(1), someBytes(chunk), someBytes(chunk + 1)};
        QList<FileTransferTask> tasks;
        for (const QByteArray &content : contents)
            tasks.append(taskFor(u"f%1"_s.arg(content.size()), content));
        m_sender->startSending(tasks);

        QByteArrayList arrived(4);
        QList<int> chunks(4);
        for (const QByteArray &payload : m_sent[MessageType::FileData]) {
            const auto header = TransferMessages::ChunkHeader::readFrom(payload.constData());
            QCOMPARE(header.offset, arrived[header.taskId].size());
            QCOMPARE(header.chunkSize, payload.size() - 16);
            arrived[header.taskId] += payload.sliced(16);
            ++chunks[header.taskId];
        }
        QVERIFY(arrived == contents);
        QCOMPARE(chunks, (QList<int>{0, 1, 1, 2}));
        QCOMPARE(m_sent[MessageType::FileHeader].size(), 4);
        QCOMPARE(m_sent[MessageType::FileEnd].size(), 4);
        for (int i = 0; i < 4; ++i) {
            const auto header = TransferMessages::Header::fromPayload(m_sent[MessageType::FileHeader][i]);
            QCOMPARE(header.relativePath, tasks[i].relativePath);
            QCOMPARE(header.fileSize, contents[i].size());
            QVERIFY(header.modifiedTime > 0);
            const auto end = TransferMessages::End::fromPayload(m_sent[MessageType::FileEnd][i]);
            QCOMPARE(end.checksum, checksumOf(contents[i]));
            QCOMPARE(end.totalSent, contents[i].size());
        }
        QCOMPARE(m_completed->takeFirst(), (QVariantList{4, 0, 0, qlonglong(1 + chunk + chunk + 1)}));
    }

    void filesThatCannotBeReadAreFailures()
    {
        answerBatches(true);
        FileTransferTask missing = taskFor(u"missing"_s, "x");
        QVERIFY(QFile::remove(missing.sourcePath));
        FileTransferTask folder = taskFor(u"folder"_s, "x");
        folder.sourcePath = m_folder->path();
        FileTransferTask pipe = taskFor(u"pipe"_s, "x");
        QVERIFY(QFile::remove(pipe.sourcePath));
        if (QProcess::execute(u"mkfifo"_s, {pipe.sourcePath}) != 0)
            pipe.sourcePath = m_folder->path(); // no pipes in folders here

        QSignalSpy failed(m_sender.get(), &FileSenderWorker::fileFailed);
        m_sender->startSending({missing, folder, pipe, taskFor(u"good"_s, "good")});
        QCOMPARE(failed.size(), 3);
        QCOMPARE(failed.at(0).at(1).toString(), u"File not found: "_s + missing.sourcePath);
        QVERIFY(failed.at(2).at(1).toString().startsWith(u"Cannot open file: "_s));
        QCOMPARE(m_sent[MessageType::FileHeader].size(), 1);
        QCOMPARE(m_completed->takeFirst(), (QVariantList{1, 3, 0, 4ll}));
    }

    void tenFilesMakeABatch()
    {
        answerBatches(true);
        QList<FileTransferTask> tasks;
        for (int i = 0; i < 12; ++i)
            tasks.append(taskFor(u"f%1"_s.arg(i), "ab"));
        m_sender->startSending(tasks);
        const auto request = [](int batch, int start, int end, int bytes) {
            return QJsonObject{{u"batchId"_s, batch},
                               {u"startTaskId"_s, start},
                               {u"endTaskId"_s, end},
                               {u"batchBytes"_s, bytes},
                               {u"isRequest"_s, true}};
        };
        QCOMPARE(m_sent[MessageType::FileAck].size(), 2);
        QCOMPARE(json(m_sent[MessageType::FileAck].first()), request(1, 0, 9, 20));
        QCOMPARE(json(m_sent[MessageType::FileAck].last()), request(2, 10, 11, 4));
    }

    void refusedBatchChangesNothing()
    {
        answerBatches(false);
        QTest::ignoreMessage(QtDebugMsg, "Batch ACK timeout for batch 1");
        m_sender->startSending({taskFor(u"a"_s, "abc")});
        QCOMPARE(m_completed->takeFirst(), (QVariantList{1, 0, 0, 3ll}));
    }

    void cancelInTheLastFileDoesNotWaitForAnAnswer()
    {
        onMessage([this](MessageType type, const QByteArray &) {
            if (type == MessageType::FileData)
                m_sender->cancel();
        });
        m_sender->startSending({taskFor(u"big"_s, someBytes(3 * FileSenderWorker::ChunkBytes))});
        QCOMPARE(m_sent[MessageType::FileData].size(), 1);
        QCOMPARE(m_sent[MessageType::FileEnd].size(), 1); // a cancel ends a file as its last byte would
        QCOMPARE(m_completed->size(), 0);
    }

    void fileThatChangesMeanwhileHasFailed()
    {
        answerBatches(true);
        const FileTransferTask task = taskFor(u"a"_s, "abc");
        onMessage([&task](MessageType type, const QByteArray &) {
            if (type == MessageType::FileData)
                writeFile(task.sourcePath, "other words");
        });
        QSignalSpy failed(m_sender.get(), &FileSenderWorker::taskFailed);
        QSignalSpy ended(m_sender.get(), &FileSenderWorker::fileEndSent);
        m_sender->startSending({task, taskFor(u"b"_s, "abc")});
        QCOMPARE(failed, (QList<QVariantList>{{0, u"changed while it was sent"_s}}));
        QCOMPARE(ended, (QList<QVariantList>{{0, true}, {1, false}}));
        QCOMPARE(json(m_sent[MessageType::FileEnd].first()).value(u"changed"_s), QJsonValue(true));
    }

    void cancelWakesAWaitingBatch()
    {
        std::atomic<bool> asked = false;
        onMessage([&](MessageType type, const QByteArray &) {
            m_sender->onBatchAckReceived(99, true, {}); // another batch's
            asked = asked || type == MessageType::FileAck;
        });
        sendOnAThread({taskFor(u"a"_s, "abc")});
        const bool askedInTime = QTest::qWaitFor([&asked] { return asked.load(); });
        m_sender->cancel();
        QVERIFY(endThread());
        QVERIFY(askedInTime && m_completed->isEmpty());
    }

    void pauseHoldsWhatFollows_data()
    {
        const auto row = addColumns<MessageType, int>("pausedAt", "nth");
        row("in a file", MessageType::FileHeader, 2);
        row("in the last wait of a list", MessageType::FileAck, 1);
    }
    void pauseHoldsWhatFollows()
    {
        QFETCH(MessageType, pausedAt);
        QFETCH(int, nth);
        answerBatches(true);
        std::atomic<int> seen = 0;
        std::atomic<int> ends = 0;
        onMessage([&](MessageType type, const QByteArray &) {
            if (type == pausedAt && ++seen == nth)
                m_sender->setPaused(true);
            ends += type == MessageType::FileEnd ? 1 : 0;
        });
        sendOnAThread(
            {taskFor(u"a"_s, "abc"), taskFor(u"big"_s, someBytes(2 * FileSenderWorker::ChunkBytes))});
        const bool begun = QTest::qWaitFor([&] { return seen == nth; });
        const bool held = !QTest::qWaitFor([&ends] { return ends > 1; }, 300);
        m_sender->setPaused(false);
        const bool ended = QTest::qWaitFor([&ends] { return ends == 2; });
        QVERIFY(endThread());
        QVERIFY(begun && held && ended);
    }

    void fullSocketHoldsTheNextChunk()
    {
        answerBatches(true);
        int probes = 0;
        m_sender->setBufferProbe([&probes] { return ++probes < 4 ? qint64(8388609) : qint64(8388608); });
        QTest::ignoreMessage(QtDebugMsg, "[Sender] Backpressure - buffer: 8388609");
        QTest::ignoreMessage(QtDebugMsg, "[Sender] Backpressure released after 60 ms");
        m_sender->startSending({taskFor(u"a"_s, "abc")});
        QCOMPARE(probes, 4);
        QCOMPARE(m_sent[MessageType::FileData].size(), 1);
    }
};

ZANDROVE_TEST(FileSenderTest)
#include "FileSenderTest.moc"
