#include "pipeline/FileSenderWorker.h"

#include "peer/Protocol.h"
#include "pipeline/FileChecksum.h"
#include "pipeline/FileProgress.h"
#include "pipeline/Log.h"
#include "pipeline/TransferMessages.h"
#include "platform/FileAttributes.h"
#include "support/Utilities.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QThread>

#include <utility>

using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr std::chrono::duration<unsigned long, std::milli> PausePoll = 100ms;
constexpr std::chrono::duration<unsigned long, std::milli> BackpressurePoll = 20ms;
constexpr auto AckPoll = 500ms;
constexpr int MaxBackpressurePasses = 250;
constexpr qint64 SocketFillMark = 8388608; ///< 8 MiB
constexpr int ChunksPerProgress = 16;

int wireType(Protocol::MessageType type)
{
    return int(type);
}

QString bareName(const FileTransferTask &task)
{
    return QFileInfo(task.sourcePath).fileName();
}

} // namespace

FileSenderWorker::FileSenderWorker(QObject *parent)
    : QObject(parent)
{
}

void FileSenderWorker::startSending(QList<FileTransferTask> tasks)
{
    if (m_running.exchange(true))
        return;
    beginList(std::move(tasks));
    const TransferMessages::Start start{int(m_tasks.size()), m_totalBytes};
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::TransferStart), start.toPayload());

    for (int index = 0; index < m_tasks.size(); ++index) {
        waitWhilePaused();
        if (isCancelled())
            break;
        sendTask(index);
    }

    m_running = false;
    if (!isCancelled())
        Q_EMIT allCompleted(m_successCount, m_failedCount, m_skippedCount, m_sentBytes);
    qCDebug(logPipeline) << "FileSenderWorker: Finished. Success:" << m_successCount
                         << "Failed:" << m_failedCount << "Skipped:" << m_skippedCount;
}

void FileSenderWorker::beginList(QList<FileTransferTask> tasks)
{
    m_tasks = std::move(tasks);
    m_cancelled = false;
    m_successCount = m_failedCount = m_skippedCount = 0;
    m_totalBytes = 0;
    m_sentBytes = 0;
    m_currentIndex = 0;
    m_batches.reset();
    for (const FileTransferTask &task : std::as_const(m_tasks))
        m_totalBytes += task.fileSize;
    m_speed.start();
    qCDebug(logPipeline) << "FileSenderWorker: Starting to send" << m_tasks.size()
                         << "files, total:" << formatSize(m_totalBytes);
}

void FileSenderWorker::sendTask(int index)
{
    m_currentIndex = index;
    const FileTransferTask &task = m_tasks.at(index);
    Sending sending{task, task.taskId < 0 ? index : task.taskId, bareName(task), task.fileSize, 0, 0, {}};
    const bool sent = sendFile(sending);
    cutBatch(sending.size); // where the file hasn't got as far as that itself
    if (sent) {
        ++m_successCount;
        m_batches.addSent(sending.size);
    } else if (task.status != FileTransferTask::Skipped) {
        ++m_failedCount;
        m_batches.addFailed();
    } else {
        ++m_skippedCount;
    }
    closeBatch(sending, index == m_tasks.size() - 1);
    reportOverallProgress();
}

bool FileSenderWorker::failFile(const Sending &sending, const QString &reason)
{
    Q_EMIT taskFailed(sending.taskId, reason);
    Q_EMIT fileFailed(sending.fileName, reason);
    return false;
}

bool FileSenderWorker::sendFile(Sending &sending)
{
    const QString &path = sending.task.sourcePath;
    QFile file(path);
    if (!file.exists())
        return failFile(sending, tr("File not found: %1").arg(path));
    // Opening a pipe or a device could block for ever.
    if (!Platform::isRegularFile(path))
        return failFile(sending, tr("Cannot open file: %1").arg(tr("not a regular file")));
    const auto before = Platform::fileStamp(path);
    if (!file.open(QIODevice::ReadOnly))
        return failFile(sending, tr("Cannot open file: %1").arg(file.errorString()));

    sending.size = file.size();
    cutBatch(sending.size);
    Q_EMIT fileStarted(sending.fileName, sending.size);
    const TransferMessages::Header header{sending.taskId, sending.task.relativePath, sending.fileName,
                                          sending.size, QFileInfo(path).lastModified().toSecsSinceEpoch()};
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileHeader), header.toPayload());

    if (sendChunks(file, sending) == ChunkLoop::Abandoned)
        return failFile(sending, tr("Cancelled before it was sent whole"));
    file.close();
    return endFile(sending, reasonOfChange(sending, Platform::fileStamp(path) != before));
}

/// Why the peer must not keep what was sent of the file; empty when it may.
QString FileSenderWorker::reasonOfChange(const Sending &sending, bool rewritten) const
{
    if (!sending.readError.isEmpty())
        return tr("Cannot read file: %1").arg(sending.readError);
    if (sending.sentBytes < sending.size && isCancelled())
        return tr("Cancelled before it was sent whole");
    return rewritten || sending.sentBytes != sending.size ? tr("changed while it was sent") : QString();
}

bool FileSenderWorker::endFile(const Sending &sending, const QString &reasonOfChange)
{
    m_speed.measure(m_sentBytes, 0ms);
    reportOverallProgress();
    Q_EMIT fileProgress(sending.fileName, 100, sending.sentBytes, sending.size);
    const bool changed = !reasonOfChange.isEmpty();
    const TransferMessages::End end{sending.taskId, sending.task.relativePath, sending.checksum,
                                    sending.sentBytes, changed};
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileEnd), end.toPayload());
    // Its own reason stands ahead of the one that the end of such a file has by itself.
    if (changed)
        (void)failFile(sending, reasonOfChange);
    Q_EMIT fileEndSent(sending.taskId, changed);
    if (changed)
        return false;
    Q_EMIT fileCompleted(sending.fileName);
    return true;
}

FileSenderWorker::ChunkLoop FileSenderWorker::sendChunks(QFile &file, Sending &sending)
{
    FileChecksum checksum;
    int chunkCount = 0;
    while (!file.atEnd()) {
        // A cancel seen here ends the file as if it had been read to its end, with a
        // FileEnd for what was sent.
        if (isCancelled())
            break;
        waitWhilePaused();
        if (!isCancelled())
            waitForSocket();
        if (isCancelled())
            return ChunkLoop::Abandoned;
        if (!sendChunk(file, sending, checksum))
            break;
        if (++chunkCount % ChunksPerProgress == 0)
            reportChunkProgress(sending);
    }
    sending.checksum = checksum.value();
    return ChunkLoop::EndOfFile;
}

/// Reads and hands over the next chunk. False at the end of the file, which a read error counts as.
bool FileSenderWorker::sendChunk(QFile &file, Sending &sending, FileChecksum &checksum)
{
    using TransferMessages::ChunkHeader;

    QByteArray payload(ChunkHeader::Size + ChunkBytes, Qt::Uninitialized);
    const qint64 size = file.read(payload.data() + ChunkHeader::Size, ChunkBytes);
    if (size < 0)
        sending.readError = file.errorString();
    if (size <= 0)
        return false;
    payload.truncate(ChunkHeader::Size + size);
    if (size < ChunkBytes / 2)
        payload.squeeze(); // many small files may wait for the main thread at once
    ChunkHeader{sending.sentBytes, qint32(size), sending.taskId}.writeTo(payload.data());
    checksum.update(QByteArrayView(payload).sliced(ChunkHeader::Size));
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileData), payload);
    sending.sentBytes += size;
    m_sentBytes += size;
    return true;
}

void FileSenderWorker::reportChunkProgress(const Sending &sending)
{
    Q_EMIT fileProgress(sending.fileName, filePercent(sending.sentBytes, sending.size), sending.sentBytes,
                        sending.size);
    m_speed.measure(m_sentBytes, SpeedMeter::Interval);
    reportOverallProgress();
}

void FileSenderWorker::cutBatch(qint64 fileSize)
{
    if (const auto cut = m_batches.cutBefore(fileSize))
        request(*cut);
}

void FileSenderWorker::closeBatch(const Sending &sending, bool isLast)
{
    const auto closed = m_batches.closeAfter(sending.taskId, sending.size, isLast);
    if (!closed)
        return;
    if (closed->waits)
        awaitAnswer(*closed);
    else
        request(*closed);
}

void FileSenderWorker::request(const BatchRequest &request)
{
    // First, so that no answer can come before it is known what it answers.
    Q_EMIT answerRequested(request.batchId, request.bytes, request.waits);
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileAck),
                              TransferMessages::ackRequestPayload(request));
}

void FileSenderWorker::awaitAnswer(const BatchRequest &awaited)
{
    {
        // Before the request leaves, so that no answer can come too early to be known.
        const QMutexLocker locker(&m_ackMutex);
        m_waitingBatchId = awaited.batchId;
        m_ackReceived = false;
        m_ackSuccess = false;
        m_ackFailedFiles.clear();
    }
    request(awaited);

    const auto timeout = batchAckTimeout(awaited.bytes);
    QDeadlineTimer deadline(timeout);
    QMutexLocker locker(&m_ackMutex);
    while (!m_ackReceived && !isCancelled() && !deadline.hasExpired()) {
        m_ackCondition.wait(&m_ackMutex, QDeadlineTimer(AckPoll));
        // A paused peer cannot answer: that time does not count.
        if (m_paused)
            deadline.setRemainingTime(timeout);
    }
    if (!(m_ackReceived && m_ackSuccess))
        qCDebug(logPipeline) << "Batch ACK timeout for batch" << awaited.batchId;
}

void FileSenderWorker::cancel()
{
    m_cancelled = true;
    m_running = false;
    const QMutexLocker locker(&m_ackMutex);
    m_ackReceived = true;
    m_ackCondition.wakeAll();
}

void FileSenderWorker::stop()
{
    m_stopped = true;
    cancel();
}

void FileSenderWorker::onBatchAckReceived(int batchId, bool success, const QStringList &failedFiles)
{
    const QMutexLocker locker(&m_ackMutex);
    if (batchId != m_waitingBatchId)
        return;
    m_ackReceived = true;
    m_ackSuccess = success;
    m_ackFailedFiles = failedFiles;
    m_ackCondition.wakeAll();
}

void FileSenderWorker::waitWhilePaused() const
{
    while (m_paused && !isCancelled())
        QThread::msleep(PausePoll.count());
}

void FileSenderWorker::waitForSocket() const
{
    if (!m_bufferProbe)
        return;
    qint64 level = m_bufferProbe();
    if (level <= SocketFillMark)
        return;
    qCDebug(logPipeline) << "[Sender] Backpressure - buffer:" << level;
    int passes = 0;
    while (level > SocketFillMark && !isCancelled()) {
        QThread::msleep(BackpressurePoll.count());
        if (++passes > MaxBackpressurePasses) {
            qCDebug(logPipeline) << "[Sender] Backpressure timeout!";
            break;
        }
        level = m_bufferProbe();
    }
    qCDebug(logPipeline) << "[Sender] Backpressure released after" << passes * BackpressurePoll.count()
                         << "ms";
}

void FileSenderWorker::reportOverallProgress()
{
    FileProgress progress;
    progress.transferredBytes = m_sentBytes;
    progress.totalBytes = m_totalBytes;
    progress.bytesPerSecond = m_speed.bytesPerSecond();
    progress.completedItems = m_successCount + m_failedCount + m_skippedCount;
    progress.totalItems = int(m_tasks.size());
    progress.failedItems = m_failedCount;
    if (m_currentIndex < m_tasks.size())
        progress.currentFile = bareName(m_tasks.at(m_currentIndex));
    Q_EMIT overallProgress(progress.toRecord());
}

} // namespace Zandrove
