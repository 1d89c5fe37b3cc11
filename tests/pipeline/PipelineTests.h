#pragma once

#include "TestFiles.h"
#include "TestMain.h"

#include "pipeline/FileChecksum.h"
#include "pipeline/TransferMessages.h"

inline quint32 checksumOf(const QByteArray &bytes)
{
    Zandrove::FileChecksum sum;
    sum.update(bytes);
    return sum.value();
}

/// The payload of a `FileData` with `bytes` behind a header that may announce another number of them.
inline QByteArray chunkPayload(int taskId, const QByteArray &bytes, qint64 offset, qint32 announced)
{
    QByteArray payload(Zandrove::TransferMessages::ChunkHeader::Size, Qt::Uninitialized);
    Zandrove::TransferMessages::ChunkHeader{offset, announced, taskId}.writeTo(payload.data());
    return payload + bytes;
}

inline QByteArray chunkPayload(int taskId, const QByteArray &bytes, qint64 offset = 0)
{
    return chunkPayload(taskId, bytes, offset, qint32(bytes.size()));
}
