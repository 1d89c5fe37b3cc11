#pragma once

#include <QString>

namespace Zandrove {

/// The volume that a path lies on.
struct Volume
{
    QString name;              ///< "D:" or a mount point
    qint64 availableBytes = 0; ///< for this user; -1 where the system doesn't tell
};

/// The volume of `path`, of which the last folders need not exist yet. Asks the disk.
[[nodiscard]] Volume volumeOf(const QString &path);

} // namespace Zandrove
