#pragma once

#include "core/common/Records.h"
#include "pipeline/DestinationMap.h"
#include "pipeline/IncomingFile.h"
#include "pipeline/ReceivedFile.h"
#include "pipeline/SpeedMeter.h"
#include "pipeline/TransferMessages.h"

#include <QByteArray>
#include <QObject>

#include <atomic>

namespace Zandrove {

/// Turns the stream of file messages into files on disk, checks each against its checksum and answers
/// batches. One file is open at a time, and has its own name only when it is whole. What does not fit the
/// stream is dropped; a file that fails costs that file alone.
///
/// Its slots run in order on the thread that it lives in, whose event queue buffers the stream. `cancel`,
/// `setPaused` and the inflow operations may be called from any thread.
class FileReceiverWorker final : public QObject
{
    Q_OBJECT

public:
    /// Chunk bytes that may wait for this worker before the link should stop reading.
    static constexpr qint64 InflowMark = 64 * 1024 * 1024;

    explicit FileReceiverWorker(QObject *parent = nullptr);
    /// Removes the file that is still open, if any.
    ~FileReceiverWorker() override;

    /// Where files go that no standard folder is named for. Set before the thread starts.
    void setDestinationRoot(const QString &root) { m_destRoot = root; }
    /// A `ConflictPolicy`. Set before the thread starts.
    void setConflictPolicy(int policy) { m_incoming.setConflictPolicy(policy); }

    void setPaused(bool paused) { m_paused = paused; }
    /// A cancel for good: this worker begins no other run.
    void stop();

    /// Counts a chunk message as waiting, on the side that queues it.
    void addInflow(qint64 bytes) { m_inflow += bytes; }
    /// Bytes of chunk messages queued and not yet worked off.
    [[nodiscard]] qint64 inflow() const { return m_inflow; }

    /// What was received so far. To be read when `allCompleted` has been delivered.
    [[nodiscard]] const ReceivedFolders &receivedFolders() const { return m_received; }

    /// Absolute path on this PC for a peer's relative path.
    [[nodiscard]] QString destinationPath(const QString &relativePath) const;
    /// Notes a file that arrived whole, for the report.
    void recordReceivedFile(const QString &relativePath, const QString &destPath);

public Q_SLOTS:
    /// Begins a run: all counters and records from zero. Ignored while a run is on.
    void startReceiving();
    /// Ends the run and removes the file in progress: at once on this worker's own thread, otherwise as soon
    /// as this worker gets to it.
    void cancel();
    /// A list of files is announced; the lists of one run add up. `totalBytes` in bytes. Emits `spaceShort`
    /// where the first list that has any doesn't fit.
    void setTotalInfo(int fileCount, qlonglong totalBytes);
    /// A file begins; a repeat of the last header changes nothing. `checksum` is stored and not used.
    void onFileHeader(const QString &relativePath, qlonglong size, uint checksum, int taskId);
    /// A chunk: the raw payload of `FileData`. Waits here while paused.
    void onFileData(const QByteArray &data);
    /// The file is complete: compared with its checksum, kept or removed. Removed also when it has `changed`
    /// on the other PC while it was sent.
    void onFileEnd(const QString &relativePath, uint finalChecksum, int taskId, bool changed = false);
    /// Answers with the results since the last answer. Only `batchId` is used.
    void onBatchAckRequest(int batchId, int startTaskId, int endTaskId);
    /// The peer has sent everything: ends the run with `allCompleted`.
    void onTransferComplete();
    void pause() { setPaused(true); }
    void resume() { setPaused(false); }

Q_SIGNALS:
    // In all of them fileName is the bare name, sizes are bytes.
    void fileStarted(const QString &fileName, qlonglong size);
    void fileProgress(const QString &fileName, int percent, qlonglong received, qlonglong total);
    void fileCompleted(const QString &fileName);
    void fileFailed(const QString &fileName, const QString &error);
    /// What became of a file; once for each file whose header was taken, in their order. One whose end never
    /// came has failed when the next file begins or the run ends.
    void taskSettled(const Zandrove::ReceivedFile &file);
    /// The volume that files go to by default, or applications at first where there is nothing else, has less
    /// room than the announced bytes need. Once a run at most, which goes on.
    void spaceShort(qlonglong neededBytes, qlonglong availableBytes, const QString &volume);
    void overallProgress(const Zandrove::TransferProgress &progress);
    void allCompleted(int success, int failed, int skipped, qlonglong totalBytes);
    void error(const QString &msg); ///< never emitted
    void requestSendCommand(int type, const QByteArray &payload);
    /// The inflow fell to the mark or below it.
    void inflowBelowMark();

private:
    void removeOpenFile();
    void removeOpenFileIfCancelled();
    void endRun();
    [[nodiscard]] QString bareName() const;

    void failAtHeader(int taskId);
    void settle();
    [[nodiscard]] QString reasonOfFailure() const;
    void finishResult(TransferMessages::FileBatchResult result);
    void receiveChunk(const QByteArray &data);
    [[nodiscard]] bool acceptsChunk(const QByteArray &data, const TransferMessages::ChunkHeader &chunk);
    void logForeignChunk(const TransferMessages::ChunkHeader &chunk);
    void logOffsetMismatch(const TransferMessages::ChunkHeader &chunk);
    void reportChunkProgress();
    void sendBatchAck(int batchId);
    void reportOverallProgress();

    std::atomic<bool> m_paused = false;
    std::atomic<bool> m_running = false;
    std::atomic<bool> m_cancelled = false; // of the run
    std::atomic<bool> m_stopped = false;
    std::atomic<qint64> m_inflow = 0;

    QString m_destRoot;

    int m_lastHeaderTaskId = -1;
    QString m_lastHeaderPath;

    IncomingFile m_incoming;
    QString m_currentPath; // of the last header
    qint64 m_currentSize = 0;
    int m_currentTaskId = -1;
    int m_chunkCount = 0;

    QList<TransferMessages::FileBatchResult> m_batchResults;
    ReceivedFolders m_received;
    int m_successCount = 0;
    int m_failedCount = 0;
    int m_skippedCount = 0;
    qint64 m_announcedBytes = 0;
    qint64 m_receivedBytes = 0;
    int m_headerCount = 0;
    int m_totalFiles = 0;
    qint64 m_totalBytes = 0;
    bool m_isListAnnounced = false; // further ones are those of applications
    SpeedMeter m_speed;
};

} // namespace Zandrove
