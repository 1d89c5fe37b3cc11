// The chunk path of FileReceiverWorker: checks and the pace of progress.

#include "pipeline/FileProgress.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/Log.h"

#include <QElapsedTimer>
#include <QScopeGuard>
#include <QThread>

namespace Zandrove {

using TransferMessages::ChunkHeader;

namespace {

constexpr unsigned long PausePollMs = 100;
constexpr qint64 MaxChunkBytes = 0xA00000; ///< 10 MiB, twenty times what a sender uses
constexpr int ChunksPerProgress = 16;
constexpr qint64 DropLogIntervalMs = 5000;
constexpr int LogEvery = 100;
constexpr int OffsetMismatchesLoggedFirst = 10;

/// A stream out of step produces a bad chunk for every message: what was logged last, over all receivers.
struct BadChunkLog
{
    int dropped = 0;
    int offsetMismatches = 0;
    int lastDroppedTaskId = 0;
    QElapsedTimer sinceLastDrop;
};

BadChunkLog &badChunks()
{
    static BadChunkLog log;
    return log;
}

} // namespace

void FileReceiverWorker::onFileData(const QByteArray &data)
{
    const auto worked = qScopeGuard([this, size = data.size()] {
        const qint64 before = m_inflow.fetch_sub(size);
        if (before > InflowMark && before - size <= InflowMark)
            Q_EMIT inflowBelowMark();
    });
    while (m_paused && !m_cancelled && !m_stopped)
        QThread::msleep(PausePollMs);
    removeOpenFileIfCancelled();
    const auto state = m_incoming.state();
    if (!m_running || m_cancelled ||
        (state != IncomingFile::State::Writing && state != IncomingFile::State::Standing))
        return;
    receiveChunk(data);
}

bool FileReceiverWorker::acceptsChunk(const QByteArray &data, const ChunkHeader &chunk)
{
    if (quint32(chunk.chunkSize) > quint64(data.size() - ChunkHeader::Size)) {
        qCDebug(logPipeline) << "[FileData] Invalid chunkSize:" << chunk.chunkSize
                             << "available:" << data.size() - ChunkHeader::Size << "taskId:" << chunk.taskId
                             << "path:" << m_currentPath;
        return false;
    }
    if (chunk.chunkSize == 0) {
        qCDebug(logPipeline) << "[FileData] Empty chunk, taskId:" << chunk.taskId;
        return false;
    }
    if (chunk.chunkSize > MaxChunkBytes) {
        qCDebug(logPipeline) << "[FileData] Chunk too large:" << chunk.chunkSize << "taskId:" << chunk.taskId
                             << "path:" << m_currentPath;
        return false;
    }
    if (chunk.taskId != m_currentTaskId) {
        logForeignChunk(chunk);
        return false;
    }
    return true;
}

void FileReceiverWorker::receiveChunk(const QByteArray &data)
{
    if (data.size() < ChunkHeader::Size) {
        qCDebug(logPipeline) << "[FileData] Invalid packet: size" << data.size() << "< header"
                             << ChunkHeader::Size;
        return;
    }
    const ChunkHeader chunk = ChunkHeader::readFrom(data.constData());
    if (!acceptsChunk(data, chunk))
        return;
    const bool isWriting = m_incoming.state() == IncomingFile::State::Writing;
    if (isWriting && chunk.offset != m_incoming.receivedBytes())
        logOffsetMismatch(chunk); // reports only: chunks are written in order of arrival

    const QByteArrayView bytes = QByteArrayView(data).sliced(ChunkHeader::Size, chunk.chunkSize);
    if (!m_incoming.take(bytes)) {
        settle();
        Q_EMIT fileFailed(bareName(), reasonOfFailure());
        return;
    }
    if (!isWriting)
        return;
    m_receivedBytes += bytes.size();
    if (++m_chunkCount % ChunksPerProgress == 0)
        reportChunkProgress();
}

void FileReceiverWorker::reportChunkProgress()
{
    Q_EMIT fileProgress(bareName(), filePercent(m_incoming.receivedBytes(), m_currentSize),
                        m_incoming.receivedBytes(), m_currentSize);
    m_speed.measure(m_receivedBytes, SpeedMeter::Interval);
    reportOverallProgress();
}

void FileReceiverWorker::logForeignChunk(const ChunkHeader &chunk)
{
    BadChunkLog &log = badChunks();
    ++log.dropped;
    const bool due = log.dropped == 1 || log.dropped % LogEvery == 0 ||
                     chunk.taskId != log.lastDroppedTaskId || log.sinceLastDrop.elapsed() > DropLogIntervalMs;
    if (!due)
        return;
    qCDebug(logPipeline) << "[FileData] taskId mismatch - expected:" << m_currentTaskId
                         << "got:" << chunk.taskId << "totalDropped:" << log.dropped
                         << "offset:" << chunk.offset << "chunkSize:" << chunk.chunkSize
                         << "currentPath:" << m_currentPath;
    log.lastDroppedTaskId = chunk.taskId;
    log.sinceLastDrop.start();
}

void FileReceiverWorker::logOffsetMismatch(const ChunkHeader &chunk)
{
    const int count = ++badChunks().offsetMismatches;
    if (count > OffsetMismatchesLoggedFirst && count % LogEvery != 0)
        return;
    qCDebug(logPipeline) << "[FileData] Offset mismatch #" << count
                         << "- expected:" << m_incoming.receivedBytes() << "got:" << chunk.offset
                         << "diff:" << qint64(quint64(chunk.offset) - quint64(m_incoming.receivedBytes()))
                         << "taskId:" << chunk.taskId << "path:" << m_currentPath;
}

} // namespace Zandrove
