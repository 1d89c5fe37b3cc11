#include "pipeline/FileReceiverWorker.h"

#include "peer/Protocol.h"
#include "pipeline/FileProgress.h"
#include "pipeline/Log.h"
#include "support/Volumes.h"

#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

using TransferMessages::FileBatchResult;

FileReceiverWorker::FileReceiverWorker(QObject *parent)
    : QObject(parent)
{
    m_incoming.setCancelTest([this] { return m_cancelled.load(); });
}

FileReceiverWorker::~FileReceiverWorker()
{
    m_incoming.abandon();
}

QString FileReceiverWorker::destinationPath(const QString &relativePath) const
{
    return destinationFor(relativePath, m_destRoot);
}

void FileReceiverWorker::recordReceivedFile(const QString &relativePath, const QString &destPath)
{
    m_received.record(relativePath, destPath, tr("Received Files"));
}

void FileReceiverWorker::startReceiving()
{
    qCDebug(logPipeline) << "FileReceiverWorker::startReceiving() called";
    qCDebug(logPipeline) << "  destRoot:" << m_destRoot;
    qCDebug(logPipeline) << "  already running:" << m_running.load();
    removeOpenFileIfCancelled();
    if (m_running || m_stopped)
        return;
    m_running = true;
    m_cancelled = false;
    m_successCount = m_failedCount = m_skippedCount = 0;
    m_announcedBytes = m_receivedBytes = 0;
    m_headerCount = m_totalFiles = 0;
    m_totalBytes = 0;
    m_received.clear();
    m_incoming.forgetFolders();
    m_isListAnnounced = false;
    m_lastHeaderTaskId = -1;
    m_lastHeaderPath.clear();
    m_batchResults.clear();
    m_speed.start();
    qCDebug(logPipeline) << "FileReceiverWorker: Ready to receive files, m_running:" << m_running.load();
}

void FileReceiverWorker::cancel()
{
    m_cancelled = true;
    m_running = false;
    if (QThread::currentThread() == thread())
        removeOpenFile();
    else // the file is the worker's own, and a beginning of the run may still be queued in front
        QMetaObject::invokeMethod(this, &FileReceiverWorker::endRun, Qt::QueuedConnection);
}

void FileReceiverWorker::stop()
{
    m_stopped = true;
    cancel();
}

void FileReceiverWorker::endRun()
{
    m_cancelled = true;
    m_running = false;
    removeOpenFile();
}

void FileReceiverWorker::removeOpenFileIfCancelled()
{
    if (m_cancelled)
        removeOpenFile();
}

void FileReceiverWorker::removeOpenFile()
{
    if (m_incoming.abandon())
        settle();
}

void FileReceiverWorker::setTotalInfo(int fileCount, qlonglong totalBytes)
{
    const bool isFirst = m_totalBytes == 0; // with anything in it
    const bool isOfApps = std::exchange(m_isListAnnounced, true);
    m_totalFiles = int(std::min<qint64>(qint64(m_totalFiles) + fileCount, std::numeric_limits<int>::max()));
    m_totalBytes = saturatingAdd(m_totalBytes, totalBytes);
    qCDebug(logPipeline) << "setTotalInfo: +" << fileCount << totalBytes << "| Total:" << m_totalFiles
                         << m_totalBytes;
    if (!m_running || !isFirst)
        return;
    const Volume volume = volumeOf(destinationPath(isOfApps ? u"Apps/x"_s : u"x"_s));
    if (volume.availableBytes >= 0 && totalBytes > volume.availableBytes)
        Q_EMIT spaceShort(totalBytes, volume.availableBytes, volume.name);
}

void FileReceiverWorker::onFileHeader(const QString &relativePath, qlonglong size, uint checksum, int taskId)
{
    Q_UNUSED(checksum)
    removeOpenFileIfCancelled();
    if (taskId == m_lastHeaderTaskId && relativePath == m_lastHeaderPath) {
        qCDebug(logPipeline) << "FileReceiverWorker::onFileHeader - DUPLICATE IGNORED:" << relativePath
                             << "taskId:" << taskId;
        return;
    }
    m_lastHeaderTaskId = taskId;
    m_lastHeaderPath = relativePath;
    if (!m_running || m_cancelled) {
        qCDebug(logPipeline) << "  WARNING: Ignoring because running=" << m_running.load()
                             << "cancelled=" << m_cancelled.load();
        return;
    }
    removeOpenFile(); // its end never came
    m_currentPath = relativePath;
    m_currentSize = size;
    m_currentTaskId = taskId;
    m_chunkCount = 0;
    m_announcedBytes = saturatingAdd(m_announcedBytes, size);
    ++m_headerCount;

    ReceivedFile announced;
    announced.taskId = taskId;
    announced.relativePath = relativePath;
    announced.destination = destinationPath(relativePath);
    announced.bytes = size;
    switch (m_incoming.begin(announced)) {
    case IncomingFile::State::Writing:
        Q_EMIT fileStarted(bareName(), size);
        break;
    case IncomingFile::State::Standing:
        ++m_skippedCount;
        qCDebug(logPipeline) << "  File skipped:" << relativePath;
        break;
    default:
        failAtHeader(taskId);
        break;
    }
}

void FileReceiverWorker::failAtHeader(int taskId)
{
    const QString reason = reasonOfFailure();
    m_batchResults.append(
        {taskId, m_currentPath, false, reason, false, false, m_incoming.record().fullVolume});
    ++m_failedCount;
    qCDebug(logPipeline) << "  FAILED to open file for writing:" << m_currentPath << reason;
    settle();
    Q_EMIT fileFailed(bareName(), reason);
}

QString FileReceiverWorker::reasonOfFailure() const
{
    const auto withSystemText = [this](const QString &text) {
        return m_incoming.systemText().isEmpty() ? text : text + u": "_s + m_incoming.systemText();
    };
    switch (m_incoming.problem()) {
    case IncomingFile::Problem::None:
        return {};
    case IncomingFile::Problem::CannotCreate:
        return withSystemText(tr("Failed to create file"));
    case IncomingFile::Problem::WriteError:
        return withSystemText(tr("Write error"));
    case IncomingFile::Problem::Mismatch:
        return tr("Checksum mismatch");
    case IncomingFile::Problem::Changed:
        return tr("changed while it was sent");
    case IncomingFile::Problem::Unfinished:
        return tr("It did not arrive whole");
    }
    return {};
}

/// Tells what became of the file begun last.
void FileReceiverWorker::settle()
{
    ReceivedFile file = m_incoming.record();
    file.reason = reasonOfFailure();
    Q_EMIT taskSettled(file);
}

void FileReceiverWorker::onFileEnd(const QString &relativePath, uint finalChecksum, int taskId, bool changed)
{
    removeOpenFileIfCancelled();
    if (!m_running || m_cancelled)
        return;
    FileBatchResult result{taskId, relativePath, false, tr("Checksum mismatch"), false, false, {}};
    const auto before = m_incoming.state();
    if (before == IncomingFile::State::Writing || before == IncomingFile::State::Standing) {
        result.success = m_incoming.end(finalChecksum, changed);
        const ItemOutcome outcome = m_incoming.record().outcome;
        result.skipped = outcome == ItemOutcome::WasThere || outcome == ItemOutcome::WasDifferent;
        result.identical = m_incoming.isIdentical();
        if (result.skipped && before == IncomingFile::State::Writing)
            ++m_skippedCount; // it has come to stand there meanwhile
        settle();
    }
    // Also of a file that has found no room before its end.
    if (before != IncomingFile::State::None)
        result.fullVolume = m_incoming.record().fullVolume;
    finishResult(result);
}

void FileReceiverWorker::finishResult(FileBatchResult result)
{
    if (result.success) {
        result.error.clear();
        ++m_successCount;
        Q_EMIT fileCompleted(bareName());
        recordReceivedFile(result.relativePath, result.skipped ? QString() : m_incoming.record().destination);
    } else {
        // A file that couldn't even be begun has told its reason at its header.
        const auto problem = m_incoming.problem();
        if (problem != IncomingFile::Problem::None && problem != IncomingFile::Problem::CannotCreate)
            result.error = reasonOfFailure();
        ++m_failedCount;
        Q_EMIT fileFailed(bareName(), result.error);
    }
    m_batchResults.append(result);
    reportOverallProgress();
}

void FileReceiverWorker::onBatchAckRequest(int batchId, int startTaskId, int endTaskId)
{
    Q_UNUSED(startTaskId)
    Q_UNUSED(endTaskId)
    removeOpenFileIfCancelled();
    sendBatchAck(batchId);
}

void FileReceiverWorker::sendBatchAck(int batchId)
{
    qCDebug(logPipeline) << ">>> FileReceiverWorker::sendBatchAck called! batchId:" << batchId;
    Q_EMIT requestSendCommand(int(Protocol::MessageType::FileAck),
                              TransferMessages::ackPayload(batchId, m_batchResults));
    m_batchResults.clear();
}

void FileReceiverWorker::onTransferComplete()
{
    removeOpenFileIfCancelled();
    qCDebug(logPipeline) << "FileReceiverWorker::onTransferComplete() called";
    qCDebug(logPipeline) << "  Success:" << m_successCount << "Failed:" << m_failedCount
                         << "Skipped:" << m_skippedCount << "Bytes:" << m_receivedBytes;
    removeOpenFile();
    m_running = false;
    Q_EMIT allCompleted(m_successCount, m_failedCount, m_skippedCount, m_receivedBytes);
}

QString FileReceiverWorker::bareName() const
{
    return QFileInfo(m_currentPath).fileName();
}

void FileReceiverWorker::reportOverallProgress()
{
    FileProgress progress;
    progress.transferredBytes = m_receivedBytes;
    progress.totalBytes = m_totalBytes > 0 ? m_totalBytes : m_announcedBytes;
    progress.bytesPerSecond = m_speed.bytesPerSecond();
    progress.completedItems = m_successCount + m_failedCount + m_skippedCount;
    progress.totalItems = m_totalFiles > 0 ? m_totalFiles : m_headerCount;
    progress.failedItems = m_failedCount;
    progress.currentFile = bareName();
    Q_EMIT overallProgress(progress.toRecord());
}

} // namespace Zandrove
