#pragma once

#include <QtGlobal>

#include <chrono>
#include <optional>

namespace Zandrove {

/// A request for acknowledgement that closes a batch.
struct BatchRequest
{
    int batchId = 0;
    int startTaskId = 0;
    int endTaskId = 0;
    qint64 bytes = 0;
    bool waits = true; ///< the sender waits for the answer before it goes on
};

/// Decides after which files the sender asks for an acknowledgement: after 10 files, after 50 MiB, and at the
/// end of the list. A file over 1 GiB is asked for by itself, without a wait, and so is, before it, the open
/// batch that it cuts short.
class BatchPlanner final
{
public:
    static constexpr int MaxFiles = 10;
    static constexpr qint64 MaxBytes = 52428800;          ///< 50 MiB
    static constexpr qint64 SingleFileBytes = 0x40000000; ///< 1 GiB

    /// Begins a new list with batch 1.
    void reset() { *this = BatchPlanner(); }

    /// A file of the open batch was sent.
    void addSent(qint64 bytes);
    /// A file of the open batch could not be sent; it counts as a file and not by its bytes.
    void addFailed();

    /// Before a file leaves: the request that closes the open batch here, if the file cuts one short.
    [[nodiscard]] std::optional<BatchRequest> cutBefore(qint64 fileSize);

    /// After each file, sent or not: the request that closes a batch here, if one does. `fileSize` in bytes;
    /// `isLast`: the list ends with this file.
    [[nodiscard]] std::optional<BatchRequest> closeAfter(int taskId, qint64 fileSize, bool isLast);

private:
    [[nodiscard]] BatchRequest close(int taskId);

    int m_batchId = 0;
    int m_batchStartTaskId = 0;
    int m_lastTaskId = 0;
    int m_batchFileCount = 0;
    qint64 m_batchBytes = 0;
};

/// How long the sender waits for the answer to a batch of this many bytes: 5 minutes, and 2 more for each
/// whole GiB.
[[nodiscard]] std::chrono::milliseconds batchAckTimeout(qint64 batchBytes);

} // namespace Zandrove
