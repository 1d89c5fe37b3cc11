#pragma once

#include "core/common/Records.h"
#include "pipeline/BatchPlanner.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// The payloads of the file messages, writer beside reader. A reader takes whatever a peer sends: missing
/// keys and values of another type read as 0, empty or false, sizes as 0 to 2^53.
namespace Zandrove::TransferMessages {

/// `TransferStart`: a list of files follows.
struct Start
{
    int fileCount = 0;
    qint64 totalSize = 0; ///< bytes

    [[nodiscard]] QByteArray toPayload() const;
    [[nodiscard]] static Start fromPayload(const QByteArray &payload);
};

/// `FileHeader`: the next chunks belong to this file.
struct Header
{
    int taskId = 0;
    QString relativePath;
    QString fileName;
    qint64 fileSize = 0;     ///< bytes
    qint64 modifiedTime = 0; ///< seconds since the epoch

    [[nodiscard]] QByteArray toPayload() const;
    [[nodiscard]] static Header fromPayload(const QByteArray &payload);
};

/// The binary head of a `FileData` payload; `chunkSize` bytes of the file follow it. All fields big-endian.
struct ChunkHeader
{
    static constexpr int Size = 16; ///< bytes on the wire

    qint64 offset = 0; ///< of the chunk in the file
    qint32 chunkSize = 0;
    qint32 taskId = 0;

    /// Writes the header over the first `Size` bytes at `payload`.
    void writeTo(char *payload) const;
    /// Reads the header from the first `Size` bytes at `payload`.
    [[nodiscard]] static ChunkHeader readFrom(const char *payload);
};

/// `FileEnd`: the file is complete.
struct End
{
    int taskId = 0;
    QString relativePath;
    quint32 checksum = 0;
    qint64 totalSent = 0; ///< bytes
    bool changed = false; ///< it is not the file that it was when reading began, or not all could be read

    [[nodiscard]] QByteArray toPayload() const;
    [[nodiscard]] static End fromPayload(const QByteArray &payload);
};

/// `FileAck` as a request.
[[nodiscard]] QByteArray ackRequestPayload(const BatchRequest &request);

/// Result of one received file.
struct FileBatchResult
{
    int taskId = 0;
    QString relativePath;
    bool success = false;
    QString error;          ///< text for the peer, empty on success
    bool skipped = false;   ///< something stood in its place, and stays there
    bool identical = false; ///< and has the same content
    QString fullVolume;     ///< the volume that had no room for it; else empty
};

/// `FileAck` as an answer.
[[nodiscard]] QByteArray ackPayload(int batchId, const QList<FileBatchResult> &results);

/// A `FileAck` as it arrives: a request or an answer.
struct Ack
{
    static constexpr qsizetype MaxNamed = 10000; ///< named files that are read; the rest is ignored

    /// A file that didn't arrive.
    struct NamedFile
    {
        int taskId = 0;
        QString relativePath;
        QString error;
        bool skipped = false;          ///< something stood in its place, and stays there
        std::optional<bool> identical; ///< and has the same content, where the peer has compared
        QString fullVolume;            ///< the volume that had no room for it; else empty
    };

    bool isRequest = false;
    int batchId = 0;
    int startTaskId = 0;
    int endTaskId = 0;
    bool success = false;
    QList<NamedFile> namedFiles;

    [[nodiscard]] QStringList namedPaths() const;

    [[nodiscard]] static Ack fromPayload(const QByteArray &payload);
};

/// `TransferComplete`: the counts of the sender's report.
[[nodiscard]] QByteArray completePayload(const MigrationReport &report);

/// `Heartbeat` of a New PC behind a run: everything that had come is installed and applied, or has failed.
[[nodiscard]] QByteArray settledPayload();
[[nodiscard]] bool saysSettled(const QByteArray &payload);

} // namespace Zandrove::TransferMessages
