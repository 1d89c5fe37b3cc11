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
    m_paused = false;
    m_cancelled = false;
    m_successCount = m_failedCount = m_skippedCount = 0;
    m_totalBytes = 0;
    m_sentBytes = 0;
    m_currentIndex = 0;
    m_batches.reset();
    for (int index = 0; index < m_tasks.size(); ++index) {
        FileTransferTask &task = m_tasks[index];
        if (task.taskId < 0)
            task.taskId = index;
        m_totalBytes += task.fileSize;
    }
    m_speed.start();
    qCDebug(logPipeline) << "FileSenderWorker: Starting to send" << m_tasks.size()
                         << "files, total:" << formatSize(m_totalBytes);
}

void FileSenderWorker::sendTask(int index)
{
    m_currentIndex = index;
    FileTransferTask &task = m_tasks[index];
    if (sendFile(task)) {
        ++m_successCount;
        task.status = FileTransferTask::Completed;
        m_batches.addSent(task.fileSize);
    } else if (task.status != FileTransferTask::Skipped) {
        ++m_failedCount;
        task.status = FileTransferTask::Failed;
        m_batches.addFailed();
    } else {
        ++m_skippedCount;
    }
    closeBatch(task, index == m_tasks.size() - 1);
    reportOverallProgress();
}

bool FileSenderWorker::failFile(FileTransferTask &task, const QString &reason)
{
    task.error = reason;
    Q_EMIT fileFailed(bareName(task), task.error);
    return false;
}

bool FileSenderWorker::sendFile(FileTransferTask &task)
{
    QFile file(task.sourcePath);
    if (!file.exists())
        return failFile(task, tr("File not found: %1").arg(task.sourcePath));
    // Opening a pipe or a device could block for ever.
    if (!Platform::isRegularFile(task.sourcePath))
        return failFile(task, tr("Cannot open file: %1").arg(tr("not a regular file")));
    if (!file.open(QIODevice::ReadOnly))
        return failFile(task, tr("Cannot open file: %1").arg(file.errorString()));

    const QString fileName = bareName(task);
    task.fileSize = file.size();
    Q_EMIT fileStarted(fileName, task.fileSize);
    const TransferMessages::Header header{task.taskId, task.relativePath, fileName, task.fileSize,
                                          QFileInfo(task.sourcePath).lastModified().toSecsSinceEpoch()};
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileHeader), header.toPayload());

    if (sendChunks(file, task) == ChunkLoop::Abandoned)
        return false;
    file.close();

    m_speed.measure(m_sentBytes, 0ms);
    reportOverallProgress();
    Q_EMIT fileProgress(fileName, 100, task.transferredBytes, task.fileSize);
    const TransferMessages::End end{task.taskId, task.relativePath, task.checksum, task.transferredBytes};
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileEnd), end.toPayload());
    Q_EMIT fileCompleted(fileName);
    return true;
}

FileSenderWorker::ChunkLoop FileSenderWorker::sendChunks(QFile &file, FileTransferTask &task)
{
    FileChecksum checksum;
    task.transferredBytes = 0;
    int chunkCount = 0;
    while (!file.atEnd()) {
        // A cancel seen here ends the file as if it had been read to its end, with a FileEnd for what was
        // sent.
        if (isCancelled())
            break;
        waitWhilePaused();
        if (!isCancelled())
            waitForSocket();
        if (isCancelled())
            return ChunkLoop::Abandoned;
        if (!sendChunk(file, task, checksum))
            break;
        if (++chunkCount % ChunksPerProgress == 0)
            reportChunkProgress(task);
    }
    task.checksum = checksum.value();
    return ChunkLoop::EndOfFile;
}

/// Reads and hands over the next chunk. False at the end of the file, which a read error counts as.
bool FileSenderWorker::sendChunk(QFile &file, FileTransferTask &task, FileChecksum &checksum)
{
    using TransferMessages::ChunkHeader;

    QByteArray payload(ChunkHeader::Size + ChunkBytes, Qt::Uninitialized);
    const qint64 size = file.read(payload.data() + ChunkHeader::Size, ChunkBytes);
    if (size <= 0)
        return false;
    payload.truncate(ChunkHeader::Size + size);
    if (size < ChunkBytes / 2)
        payload.squeeze(); // many small files may wait for the main thread at once
    ChunkHeader{task.transferredBytes, qint32(size), task.taskId}.writeTo(payload.data());
    checksum.update(QByteArrayView(payload).sliced(ChunkHeader::Size));
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileData), payload);
    task.transferredBytes += size;
    m_sentBytes += size;
    return true;
}

void FileSenderWorker::reportChunkProgress(const FileTransferTask &task)
{
    Q_EMIT fileProgress(bareName(task), filePercent(task.transferredBytes, task.fileSize),
                        task.transferredBytes, task.fileSize);
    m_speed.measure(m_sentBytes, SpeedMeter::Interval);
    reportOverallProgress();
}

void FileSenderWorker::closeBatch(const FileTransferTask &task, bool isLast)
{
    const auto request = m_batches.closeAfter(task.taskId, task.fileSize, isLast);
    if (!request)
        return;
    if (request->waits)
        requestAndAwaitAck(*request);
    else
        Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileAck),
                                  TransferMessages::ackRequestPayload(*request));
}

void FileSenderWorker::requestAndAwaitAck(const BatchRequest &request)
{
    {
        // Before the request leaves, so that no answer can come too early to be known.
        const QMutexLocker locker(&m_ackMutex);
        m_waitingBatchId = request.batchId;
        m_ackReceived = false;
        m_ackSuccess = false;
        m_ackFailedFiles.clear();
    }
    Q_EMIT requestSendCommand(wireType(Protocol::MessageType::FileAck),
                              TransferMessages::ackRequestPayload(request));

    const auto timeout = batchAckTimeout(request.bytes);
    QDeadlineTimer deadline(timeout);
    QMutexLocker locker(&m_ackMutex);
    while (!m_ackReceived && !isCancelled() && !deadline.hasExpired()) {
        m_ackCondition.wait(&m_ackMutex, QDeadlineTimer(AckPoll));
        // A paused peer cannot answer: that time does not count.
        if (m_paused)
            deadline.setRemainingTime(timeout);
    }
    if (!(m_ackReceived && m_ackSuccess))
        qCDebug(logPipeline) << "Batch ACK timeout for batch" << request.batchId;
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
