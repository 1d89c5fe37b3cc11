#pragma once

#include "core/common/Records.h"
#include "pipeline/BatchPlanner.h"
#include "pipeline/SpeedMeter.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QWaitCondition>

#include <atomic>
#include <functional>

class QFile;

namespace Zandrove {

/// Sends one list of files to the peer, one file after the other. It knows no socket: each finished message
/// leaves by `requestSendCommand`. It reads every file once and sums it on the way; after each batch it waits
/// for the peer's answer, which only paces it: no file is sent twice.
///
/// Its slots run on the thread that it lives in and `startSending` blocks that thread until the list is
/// through. `cancel`, `stop`, `setPaused` and `onBatchAckReceived` may be called from any thread, and are
/// meant to be.
class FileSenderWorker final : public QObject
{
    Q_OBJECT

public:
    static constexpr qint64 ChunkBytes = 524288; ///< 512 KiB

    explicit FileSenderWorker(QObject *parent = nullptr);

    /// A `ConflictPolicy`; carried only.
    void setConflictPolicy(int policy) { m_conflictPolicy = policy; }
    /// Tells how many bytes wait in the socket; called on the worker's thread. Without
    /// one nothing is held back.
    void setBufferProbe(std::function<qint64()> probe) { m_bufferProbe = std::move(probe); }

    void setPaused(bool paused) { m_paused = paused; }
    /// A cancel for good: this worker sends no other list.
    void stop();

public Q_SLOTS:
    /// Sends the list, which is not modified. Ignored while another list is being sent. Ends by
    /// `allCompleted`, or silently when cancelled.
    void startSending(QList<Zandrove::FileTransferTask> tasks);
    void pause() { setPaused(true); }
    void resume() { setPaused(false); }
    /// Ends the list at the next chunk and wakes a waiting batch.
    void cancel();
    /// The peer's answer to a batch; answers to another batch than the awaited one are ignored.
    void onBatchAckReceived(int batchId, bool success, const QStringList &failedFiles);

Q_SIGNALS:
    // In all of them fileName is the bare name, sizes are bytes.
    void fileStarted(const QString &fileName, qlonglong size);
    void fileProgress(const QString &fileName, int percent, qlonglong sent, qlonglong total);
    void fileCompleted(const QString &fileName);
    void fileFailed(const QString &fileName, const QString &error);
    void overallProgress(const Zandrove::TransferProgress &progress);
    void allCompleted(int success, int failed, int skipped, qlonglong totalBytes);
    void error(const QString &msg); ///< never emitted
    /// The file was not sent, or not whole. Once for each file that is not, in the order of the list.
    void taskFailed(int taskId, const QString &reason);
    /// A `FileEnd` has left, before any request that covers the file. One that has `changed` also fails.
    void fileEndSent(int taskId, bool changed);
    /// A request leaves, right behind this signal. `waits`: this worker waits for its answer.
    void answerRequested(int batchId, qint64 batchBytes, bool waits);
    void requestSendCommand(int type, const QByteArray &payload);

private:
    enum class ChunkLoop { EndOfFile, Abandoned };

    /// The task in work.
    struct Sending
    {
        const FileTransferTask &task;
        int taskId = -1;
        QString fileName; // bare
        qint64 size = 0;  // as announced, bytes
        qint64 sentBytes = 0;
        quint32 checksum = 0;
        QString readError;
    };

    void beginList(QList<FileTransferTask> tasks);
    [[nodiscard]] bool isCancelled() const { return m_cancelled || m_stopped; }
    void sendTask(int index);
    [[nodiscard]] bool sendFile(Sending &sending);
    [[nodiscard]] bool endFile(const Sending &sending, const QString &reasonOfChange);
    [[nodiscard]] QString reasonOfChange(const Sending &sending, bool rewritten) const;
    [[nodiscard]] bool failFile(const Sending &sending, const QString &reason);
    [[nodiscard]] ChunkLoop sendChunks(QFile &file, Sending &sending);
    [[nodiscard]] bool sendChunk(QFile &file, Sending &sending, class FileChecksum &checksum);
    void reportChunkProgress(const Sending &sending);
    void cutBatch(qint64 fileSize);
    void closeBatch(const Sending &sending, bool isLast);
    void request(const BatchRequest &request);
    void awaitAnswer(const BatchRequest &awaited);
    void waitWhilePaused() const;
    void waitForSocket() const;
    void reportOverallProgress();

    std::function<qint64()> m_bufferProbe;
    QList<FileTransferTask> m_tasks;
    int m_conflictPolicy = 0;
    std::atomic<bool> m_running = false;
    std::atomic<bool> m_paused = false;
    std::atomic<bool> m_cancelled = false; // of the list in work
    std::atomic<bool> m_stopped = false;

    QMutex m_ackMutex; // guards the four fields below
    QWaitCondition m_ackCondition;
    int m_waitingBatchId = 0;
    bool m_ackReceived = false;
    bool m_ackSuccess = false;
    QStringList m_ackFailedFiles;

    int m_successCount = 0;
    int m_failedCount = 0;
    int m_skippedCount = 0;
    qint64 m_totalBytes = 0;
    qint64 m_sentBytes = 0;
    int m_currentIndex = 0;
    BatchPlanner m_batches;
    SpeedMeter m_speed;
};

} // namespace Zandrove
