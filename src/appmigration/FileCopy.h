#pragma once

#include <QString>

namespace Zandrove {

/// Copies every file at and below the folder `source` to the same place below `target`, hidden files included
/// and links left out. What exists there is replaced; it stays when it is read-only or its copy fails. Logs
/// each failure.
///
/// True when at least one file was copied; so false for a folder without files, for one that is missing, and
/// for a target that is the source or lies below it.
[[nodiscard]] bool copyDirectory(const QString &source, const QString &target);

/// Whether `path` is `folder` or lies below it, by their names alone.
[[nodiscard]] bool isWithin(const QString &path, const QString &folder);

} // namespace Zandrove
