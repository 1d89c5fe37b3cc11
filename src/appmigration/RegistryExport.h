#pragma once

#include <QString>
#include <QStringList>

namespace Zandrove {

/// Writes the registry keys `keys` (full paths) with everything below them to `outputPath`, as one .reg file
/// in UTF-16 LE that replaces an earlier one. A key that can't be exported is left out and logged. False when
/// nothing but headers came of it or the file could not be written; the file stays then too.
///
/// Runs the system's own program for each key, 30 seconds for one at the most, and blocks for as long; a
/// request to interrupt the thread ends a wait early.
[[nodiscard]] bool exportRegistryKeys(const QStringList &keys, const QString &outputPath);

} // namespace Zandrove
