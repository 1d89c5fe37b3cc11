#pragma once

#include <QString>

#include <functional>

namespace Zandrove {

/// Says that what is being looked for is not wanted any more. An empty one never does.
using StopCheck = std::function<bool()>;

/// Files after which a folder's size is not added up any further.
constexpr int MostFilesMeasured = 10000;

/// Bytes of the files at and below `path`, hidden ones included and links not followed; of the first
/// `maxFiles` only, so that for a larger folder it is a lower bound. 0 where there is no such folder; what
/// was added so far once `stop` says so.
[[nodiscard]] qint64 calculateDirSize(const QString &path, int maxFiles = MostFilesMeasured,
                                      const StopCheck &stop = {});

} // namespace Zandrove
