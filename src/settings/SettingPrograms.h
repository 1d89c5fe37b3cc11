#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The programs of the system that read and write whole settings, each by way of a temporary file. They block
/// the calling thread, 10 seconds at the most; a failure is logged.
namespace Zandrove {

/// The key and all below it, as `reg export` writes them. The root may have its long or its short name, and
/// both kinds of slash separate the parts. Nothing on failure, and nothing for an empty result.
[[nodiscard]] std::optional<QByteArray> exportRegistryKey(const QString &key);

/// Merges what exportRegistryKey() gave into the registry. False on failure, and for empty data.
[[nodiscard]] bool importRegistryData(const QByteArray &data);

/// The power scheme in use, as `powercfg` writes it. Nothing on failure.
[[nodiscard]] std::optional<QByteArray> exportPowerScheme();

/// Adds a power scheme and puts it to use. False where it could not be added; that it could not be put to use
/// is no failure. Waits for the latter without a limit.
[[nodiscard]] bool importPowerScheme(const QByteArray &scheme);

} // namespace Zandrove
