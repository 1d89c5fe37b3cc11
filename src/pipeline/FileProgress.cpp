#include "pipeline/FileProgress.h"

#include <algorithm>
#include <limits>

namespace Zandrove {

namespace {

constexpr int MovingFiles = 1;

int percent(qint64 part, qint64 whole)
{
    constexpr qint64 Limit = std::numeric_limits<int>::max();
    return int(std::min(std::min(part, std::numeric_limits<qint64>::max() / 100) * 100 / whole, Limit));
}

int remainingSeconds(qint64 bytes, double bytesPerSecond)
{
    const double seconds = double(bytes) / bytesPerSecond;
    constexpr auto Limit = double(std::numeric_limits<int>::max());
    return int(std::clamp(seconds, -Limit, Limit));
}

} // namespace

TransferProgress FileProgress::toRecord() const
{
    TransferProgress record;
    record.stage = MovingFiles;
    record.transferredBytes = transferredBytes;
    record.totalBytes = totalBytes;
    if (totalBytes > 0)
        record.overallPercent = percent(transferredBytes, totalBytes);
    record.stagePercent = record.overallPercent;
    record.bytesPerSecond = bytesPerSecond;
    if (bytesPerSecond > 0.0)
        record.remainingSeconds = remainingSeconds(totalBytes - transferredBytes, bytesPerSecond);
    record.completedItems = completedItems;
    record.totalItems = totalItems;
    record.failedItems = failedItems;
    record.currentFile = currentFile;
    return record;
}

int filePercent(qint64 part, qint64 whole)
{
    return whole > 0 ? percent(part, whole) : 100;
}

qint64 saturatingAdd(qint64 a, qint64 b)
{
    return a > std::numeric_limits<qint64>::max() - b ? std::numeric_limits<qint64>::max() : a + b;
}

} // namespace Zandrove
