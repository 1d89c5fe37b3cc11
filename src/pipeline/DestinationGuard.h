#pragma once

#include <QString>

namespace Zandrove {

/// Whether a file may be created at `destination`, which destinationFor made of the peer's `relativePath`:
/// the path stays below its folder, and nothing on the way to an application's file in the temporary folder
/// was put there by somebody else.
[[nodiscard]] bool isSafeDestination(const QString &relativePath, const QString &destination);

/// Removes `folder`, which is receivedAppsFolder() or lies below it, with everything in it. Links in it go,
/// what they lead to stays. Any other folder, and one that is reached by a link, is left alone. False when
/// something is still there.
[[nodiscard]] bool removeReceived(const QString &folder);

} // namespace Zandrove
