#include "pipeline/FileReceiverWorker.h"

#include "peer/Protocol.h"
#include "pipeline/DestinationGuard.h"
#include "pipeline/FileProgress.h"
#include "pipeline/Log.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Zandrove {

using TransferMessages::FileBatchResult;

namespace {

/// Somebody else may look into a new file just now, a virus scanner say, and on some systems keeps it from
/// being removed meanwhile.
void removeFile(const QString &path)
{
    constexpr int Attempts = 10;
    constexpr unsigned long PauseMs = 50;
    for (int attempt = 0; attempt < Attempts && !QFile::remove(path) && QFile::exists(path); ++attempt)
        QThread::msleep(PauseMs);
}

} // namespace

FileReceiverWorker::FileReceiverWorker(QObject *parent)
    : QObject(parent)
{
}

FileReceiverWorker::~FileReceiverWorker()
{
    endRun();
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
    m_writeBuffer.clear();
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
    if (!m_currentFile)
        return;
    m_currentFile->close();
    removeFile(m_currentDestPath);
    m_currentFile.reset();
    m_openedHere = false;
    m_writeBuffer.resize(0);
}

void FileReceiverWorker::setTotalInfo(int fileCount, qlonglong totalBytes)
{
    m_totalFiles = int(std::min<qint64>(qint64(m_totalFiles) + fileCount, std::numeric_limits<int>::max()));
    m_totalBytes = saturatingAdd(m_totalBytes, totalBytes);
    qCDebug(logPipeline) << "setTotalInfo: +" << fileCount << totalBytes << "| Total:" << m_totalFiles
                         << m_totalBytes;
}

void FileReceiverWorker::onFileHeader(const QString &relativePath, qlonglong size, uint checksum, int taskId)
{
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
    m_currentPath = relativePath;
    m_currentSize = size;
    m_expectedChecksum = checksum;
    m_currentReceived = 0;
    m_currentCrc.reset();
    m_currentTaskId = taskId;
    m_chunkCount = 0;
    m_announcedBytes = saturatingAdd(m_announcedBytes, size);
    ++m_headerCount;

    const OpenOutcome outcome = openDestination(relativePath);
    m_openedHere = outcome == OpenOutcome::Opened;
    switch (outcome) {
    case OpenOutcome::Opened:
        Q_EMIT fileStarted(bareName(), size);
        break;
    case OpenOutcome::Skipped:
        qCDebug(logPipeline) << "  File skipped:" << relativePath;
        break;
    case OpenOutcome::Failed:
        m_batchResults.append({taskId, relativePath, false, tr("Failed to create file")});
        ++m_failedCount;
        qCDebug(logPipeline) << "  FAILED to open file for writing:" << relativePath;
        Q_EMIT fileFailed(bareName(), tr("Failed to create file"));
        break;
    }
}

FileReceiverWorker::OpenOutcome FileReceiverWorker::openDestination(const QString &relativePath)
{
    displaceOpenFile();
    m_currentDestPath.clear();
    const QString destination = destinationPath(relativePath);
    if (!isSafeDestination(relativePath, destination)) {
        qCDebug(logPipeline) << "  Refused, the path leads out of its folder:" << relativePath;
        return OpenOutcome::Failed;
    }
    m_currentDestPath = destination;
    if (QFile::exists(m_currentDestPath)) {
        m_currentDestPath = resolveConflict(m_currentDestPath, m_conflictPolicy);
        if (m_currentDestPath.isEmpty()) {
            ++m_skippedCount;
            qCDebug(logPipeline) << "  Skipped due to conflict";
            return OpenOutcome::Skipped;
        }
    }
    return createFile();
}

FileReceiverWorker::OpenOutcome FileReceiverWorker::createFile()
{
    const QString directory = QFileInfo(m_currentDestPath).absolutePath();
    qCDebug(logPipeline) << "  Target directory:" << directory;
    if (!QDir().mkpath(directory)) {
        qCDebug(logPipeline) << "  ERROR: Failed to create directory:" << directory;
        return OpenOutcome::Failed;
    }
    qCDebug(logPipeline) << "  Directory ready:" << directory;
    // What was not there at the first look may have been put there by somebody else since.
    if (!isSafeDestination(m_currentPath, m_currentDestPath))
        return OpenOutcome::Failed;
    auto file = std::make_unique<QFile>(m_currentDestPath);
    // Unbuffered: the write buffer is this worker's own, and a full disk must show at the write that meets
    // it.
    if (!file->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qCDebug(logPipeline) << "  ERROR: Failed to open file:" << file->errorString();
        return OpenOutcome::Failed;
    }
    qCDebug(logPipeline) << "  File opened successfully";
    m_currentFile = std::move(file);
    return OpenOutcome::Opened;
}

/// A file that never got its FileEnd gives way to the next; what is on disk of it stays there.
void FileReceiverWorker::displaceOpenFile()
{
    m_currentFile.reset();
    m_writeBuffer.resize(0);
}

bool FileReceiverWorker::finalizeFile(quint32 expected)
{
    if (!flushWriteBuffer()) {
        qCDebug(logPipeline) << "[finalizeFile] flushWriteBuffer failed for:" << m_currentPath;
        return false;
    }
    bool written = true;
    if (m_currentFile) {
        m_currentFile->flush();
        m_currentFile->close();
        // Some file systems tell of a full disk only now.
        written = m_currentFile->error() == QFileDevice::NoError;
        m_currentFile.reset();
    }
    const quint32 calculated = m_currentCrc.value();
    if (calculated == expected && written)
        return true;
    qCDebug(logPipeline) << "[finalizeFile] Checksum mismatch! expected:" << QString::number(expected, 16)
                         << "calculated:" << QString::number(calculated, 16) << "fileSize:" << m_currentSize
                         << "received:" << m_currentReceived << "path:" << m_currentPath;
    // Only what this header itself wrote: never a file that was there before or that an earlier FileEnd
    // closed.
    if (m_openedHere)
        removeFile(m_currentDestPath);
    return false;
}

void FileReceiverWorker::onFileEnd(const QString &relativePath, uint finalChecksum, int taskId)
{
    removeOpenFileIfCancelled();
    if (!m_running || m_cancelled)
        return;
    FileBatchResult result{taskId, relativePath, finalizeFile(finalChecksum), QString()};
    m_openedHere = false;
    if (result.success) {
        ++m_successCount;
        Q_EMIT fileCompleted(bareName());
        recordReceivedFile(relativePath, m_currentDestPath);
    } else {
        ++m_failedCount;
        result.error = tr("Checksum mismatch");
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

QString resolveConflict(const QString &path, int policy)
{
    constexpr int MaxRenames = 999;
    switch (ConflictPolicy(policy)) {
    case ConflictPolicy::Skip:
        return {};
    case ConflictPolicy::Overwrite:
        QFile::remove(path);
        return path;
    case ConflictPolicy::Rename:
        break;
    default:
        return path;
    }
    const QFileInfo info(path);
    const QString stem = info.path() + u'/' + info.completeBaseName() + u'_';
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    for (int counter = 1; counter < MaxRenames; ++counter) {
        const QString candidate = stem + QString::number(counter) + suffix;
        if (!QFile::exists(candidate))
            return candidate;
    }
    return stem + QString::number(MaxRenames) + suffix;
}

} // namespace Zandrove
