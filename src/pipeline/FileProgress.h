#pragma once

#include "core/common/Records.h"

namespace Zandrove {

/// What a file worker knows of its run when it reports progress.
struct FileProgress
{
    qint64 transferredBytes = 0;
    qint64 totalBytes = 0;
    double bytesPerSecond = 0.0;
    int completedItems = 0; ///< succeeded, failed and skipped
    int totalItems = 0;
    int failedItems = 0;
    QString currentFile; ///< file name without directory

    /// The record that goes up to the user: percents and remaining time worked out.
    [[nodiscard]] TransferProgress toRecord() const;
};

/// Whole percent of `part` in `whole`; 100 while `whole` is not positive.
[[nodiscard]] int filePercent(qint64 part, qint64 whole);

/// `a` + `b` for values that are not negative, held at the largest value instead of overflowing.
[[nodiscard]] qint64 saturatingAdd(qint64 a, qint64 b);

} // namespace Zandrove
