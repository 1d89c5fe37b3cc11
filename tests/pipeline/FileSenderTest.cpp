#include "PipelineTests.h"

#include "peer/Protocol.h"
#include "pipeline/FileChecksum.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/TransferMessages.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Protocol::MessageType;

namespace {

QJsonObject json(const QByteArray &payload)
{
    return QJsonDocument::fromJson(payload).object();
}

} // namespace

class FileSenderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_sender = std::make_unique<FileSenderWorker>();
        m_messages.clear();
        m_nextTaskId = 0;
        connect(
            m_sender.get(), &FileSenderWorker::requestSendCommand, this,
            [this](int type, const QByteArray &payload) {
                m_messages.append({MessageType(type), payload});
            },
            Qt::DirectConnection);
    }

    void cleanup() { m_sender.reset(); }

    void emptyListIsStartedAndDone()
    {
        QSignalSpy completed(m_sender.get(), &FileSenderWorker::allCompleted);
        m_sender->startSending({});
        QCOMPARE(m_messages.size(), 1);
        QCOMPARE(m_messages.first().payload, QByteArray(R"({"fileCount":0,"totalSize":0})"));
        QCOMPARE(completed.takeFirst(), (QVariantList{0, 0, 0, 0ll}));
    }

    void filesCrossInChunks()
    {
        answerBatches(true);
        const qint64 chunk = FileSenderWorker::ChunkBytes;
        const QList<QByteArray> contents{{}, someBytes(1), someBytes(chunk), someBytes(chunk + 1)};
        const QList<int> chunkCounts{0, 1, 1, 2};
        QList<FileTransferTask> tasks;
        for (const QByteArray &content : contents)
            tasks.append(taskFor(u"f%1"_s.arg(content.size()), content));
        QSignalSpy completed(m_sender.get(), &FileSenderWorker::allCompleted);
        m_sender->startSending(tasks);

        const auto headers = messagesOf(MessageType::FileHeader);
        const auto ends = messagesOf(MessageType::FileEnd);
        QCOMPARE(headers.size(), 4);
        QCOMPARE(ends.size(), 4);
        for (int i = 0; i < contents.size(); ++i) {
            QByteArray arrived;
            int chunks = 0;
            for (const Message &message : messagesOf(MessageType::FileData)) {
                const auto header = TransferMessages::ChunkHeader::readFrom(message.payload.constData());
                if (header.taskId != i)
                    continue;
                QCOMPARE(header.offset, arrived.size());
                QCOMPARE(header.chunkSize, message.payload.size() - 16);
                arrived += message.payload.sliced(16);
                ++chunks;
            }
            QCOMPARE(chunks, chunkCounts.at(i));
            QVERIFY(arrived == contents.at(i));
            FileChecksum sum;
            sum.update(contents.at(i));
            const QJsonObject end = json(ends.at(i).payload);
            QCOMPARE(quint32(end.value(u"checksum"_s).toInteger()), sum.value());
            QCOMPARE(end.value(u"totalSent"_s).toInteger(), contents.at(i).size());
            const QJsonObject header = json(headers.at(i).payload);
            QCOMPARE(header.value(u"fileSize"_s).toInteger(), contents.at(i).size());
            QCOMPARE(header.value(u"relativePath"_s).toString(), tasks.at(i).relativePath);
            QVERIFY(header.value(u"modifiedTime"_s).toInteger() > 0);
        }
        QCOMPARE(completed.takeFirst(), (QVariantList{4, 0, 0, qlonglong(1 + chunk + chunk + 1)}));
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
        QSignalSpy completed(m_sender.get(), &FileSenderWorker::allCompleted);
        m_sender->startSending({missing, folder, pipe, taskFor(u"good"_s, "good")});
        QCOMPARE(failed.size(), 3);
        QCOMPARE(failed.at(0).at(1).toString(), u"File not found: "_s + missing.sourcePath);
        QVERIFY(failed.at(2).at(1).toString().startsWith(u"Cannot open file: "_s));
        QCOMPARE(messagesOf(MessageType::FileHeader).size(), 1);
        QCOMPARE(completed.takeFirst(), (QVariantList{1, 3, 0, 4ll}));
    }

    void tenFilesMakeABatch()
    {
        answerBatches(true);
        QList<FileTransferTask> tasks;
        for (int i = 0; i < 12; ++i)
            tasks.append(taskFor(u"f%1"_s.arg(i), "ab"));
        m_sender->startSending(tasks);
        const auto requests = messagesOf(MessageType::FileAck);
        QCOMPARE(requests.size(), 2);
        QCOMPARE(json(requests.at(0).payload), (QJsonObject{{u"batchId"_s, 1},
                                                            {u"startTaskId"_s, 0},
                                                            {u"endTaskId"_s, 9},
                                                            {u"batchBytes"_s, 20},
                                                            {u"isRequest"_s, true}}));
        QCOMPARE(json(requests.at(1).payload).value(u"startTaskId"_s).toInt(), 10);
        QCOMPARE(json(requests.at(1).payload).value(u"endTaskId"_s).toInt(), 11);
    }

    void refusedBatchChangesNothing()
    {
        answerBatches(false);
        QSignalSpy completed(m_sender.get(), &FileSenderWorker::allCompleted);
        QTest::ignoreMessage(QtDebugMsg, "Batch ACK timeout for batch 1");
        m_sender->startSending({taskFor(u"a"_s, "abc")});
        QCOMPARE(completed.takeFirst(), (QVariantList{1, 0, 0, 3ll}));
    }

    void cancelInTheLastFileDoesNotWaitForAnAnswer()
    {
        connect(
            m_sender.get(), &FileSenderWorker::requestSendCommand, this,
            [this](int type) {
                if (MessageType(type) == MessageType::FileData)
                    m_sender->cancel();
            },
            Qt::DirectConnection);
        QSignalSpy completed(m_sender.get(), &FileSenderWorker::allCompleted);
        m_sender->startSending({taskFor(u"big"_s, someBytes(3 * FileSenderWorker::ChunkBytes))});
        QCOMPARE(messagesOf(MessageType::FileData).size(), 1);
        QCOMPARE(messagesOf(MessageType::FileEnd).size(), 1); // a cancel ends a file as its last byte would
        QCOMPARE(completed.size(), 0);
    }

    void cancelWakesAWaitingBatch()
    {
        QThread thread;
        bool asked = false;
        connect(m_sender.get(), &FileSenderWorker::requestSendCommand, this,
                [&asked](int type) { asked = asked || MessageType(type) == MessageType::FileAck; });
        const auto task = taskFor(u"a"_s, "abc");
        m_sender->moveToThread(&thread);
        thread.start();
        QMetaObject::invokeMethod(m_sender.get(), [this, task] { m_sender->startSending({task}); });
        const bool askedInTime = QTest::qWaitFor([&asked] { return asked; });
        m_sender->cancel();
        thread.quit();
        QVERIFY(thread.wait(2000));
        QVERIFY(askedInTime);
    }

    void pauseHoldsTheListAndResumeLetsItGo()
    {
        answerBatches(true);
        QThread thread;
        bool started = false;
        bool completed = false;
        connect(m_sender.get(), &FileSenderWorker::fileStarted, this, [&started] { started = true; });
        connect(m_sender.get(), &FileSenderWorker::allCompleted, this, [&completed] { completed = true; });
        connect(
            m_sender.get(), &FileSenderWorker::requestSendCommand, this,
            [this](int type) {
                if (MessageType(type) == MessageType::FileHeader)
                    m_sender->setPaused(true);
            },
            Qt::DirectConnection);
        const auto task = taskFor(u"big"_s, someBytes(2 * FileSenderWorker::ChunkBytes));
        m_sender->moveToThread(&thread);
        thread.start();
        QMetaObject::invokeMethod(m_sender.get(), [this, task] { m_sender->startSending({task}); });
        const bool begun = QTest::qWaitFor([&started] { return started; });
        const bool held = !QTest::qWaitFor([&completed] { return completed; }, 300);
        m_sender->setPaused(false);
        const bool ended = QTest::qWaitFor([&completed] { return completed; });
        thread.quit();
        QVERIFY(thread.wait(2000));
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
        QCOMPARE(messagesOf(MessageType::FileData).size(), 1);
    }

private:
    struct Message
    {
        MessageType type;
        QByteArray payload;
    };

    FileTransferTask taskFor(const QString &name, const QByteArray &content)
    {
        QFile file(m_folder->filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write a test file");
        FileTransferTask task;
        task.taskId = m_nextTaskId++;
        task.sourcePath = file.fileName();
        task.relativePath = u"Photos/"_s + name;
        task.fileSize = content.size();
        return task;
    }

    QList<Message> messagesOf(MessageType type) const
    {
        QList<Message> found;
        for (const Message &message : m_messages) {
            if (message.type == type)
                found.append(message);
        }
        return found;
    }

    void answerBatches(bool success)
    {
        connect(
            m_sender.get(), &FileSenderWorker::requestSendCommand, this,
            [this, success](int type, const QByteArray &payload) {
                if (MessageType(type) == MessageType::FileAck)
                    m_sender->onBatchAckReceived(json(payload).value(u"batchId"_s).toInt(), success, {});
            },
            Qt::DirectConnection);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FileSenderWorker> m_sender;
    QList<Message> m_messages;
    int m_nextTaskId = 0;
};

ZANDROVE_TEST(FileSenderTest)
#include "FileSenderTest.moc"
