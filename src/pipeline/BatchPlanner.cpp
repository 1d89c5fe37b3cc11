#include "pipeline/BatchPlanner.h"

using namespace std::chrono_literals;

namespace Zandrove {

void BatchPlanner::addSent(qint64 bytes)
{
    ++m_batchFileCount;
    m_batchBytes += bytes;
}

void BatchPlanner::addFailed()
{
    ++m_batchFileCount;
}

std::optional<BatchRequest> BatchPlanner::cutBefore(qint64 fileSize)
{
    if (fileSize <= SingleFileBytes || m_batchFileCount < 1)
        return std::nullopt;
    BatchRequest request = close(m_lastTaskId);
    request.waits = false;
    return request;
}

std::optional<BatchRequest> BatchPlanner::closeAfter(int taskId, qint64 fileSize, bool isLast)
{
    m_lastTaskId = taskId;
    if (fileSize > SingleFileBytes) {
        BatchRequest request = close(taskId);
        request.startTaskId = taskId;
        request.bytes = fileSize;
        request.waits = false;
        return request;
    }
    const bool full = m_batchFileCount >= MaxFiles || m_batchBytes >= MaxBytes;
    if (m_batchFileCount < 1 || !(full || isLast))
        return std::nullopt;
    return close(taskId);
}

BatchRequest BatchPlanner::close(int taskId)
{
    const BatchRequest request{++m_batchId, m_batchStartTaskId, taskId, m_batchBytes, true};
    m_batchStartTaskId = taskId + 1;
    m_batchFileCount = 0;
    m_batchBytes = 0;
    return request;
}

std::chrono::milliseconds batchAckTimeout(qint64 batchBytes)
{
    constexpr qint64 GiB = 0x40000000;
    return 300000ms + 120000ms * (batchBytes / GiB);
}

} // namespace Zandrove
