#pragma once

#include <QString>

/// Paths that come from a registry or from another PC: both kinds of slash separate
/// their parts, on every system.
namespace Zandrove {

/// `path` with a slash for every backslash, the form in which the disk is asked.
[[nodiscard]] QString withSlashes(const QString &path);

/// `path` with slashes only, no doubled or trailing ones, and "." and ".." resolved.
[[nodiscard]] QString cleanPath(const QString &path);

/// The form in which two paths are compared: clean and in lower case.
[[nodiscard]] QString comparablePath(const QString &path);

} // namespace Zandrove
