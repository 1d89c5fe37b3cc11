#pragma once

#include <QString>

namespace Zandrove {

/// Whether a file may be created at `destination`, which destinationFor made of the peer's `relativePath`:
/// the path stays below its folder, and nothing on the way to an application's file in the temporary folder
/// was put there by somebody else.
[[nodiscard]] bool isSafeDestination(const QString &relativePath, const QString &destination);

/// Whether the received-applications folder may be removed with everything in it.
[[nodiscard]] bool isOwnReceivedAppsFolder();

} // namespace Zandrove
