#pragma once

#include <QString>

/// What the portable file classes do not tell about a path.
namespace Zandrove::Platform {

/// Whether `relativePath`, which a peer sent, is one that this system would read as something else than plain
/// nested names: a ".." component, a NUL character, and on Windows a colon or a component of only dots and
/// blanks. Both kinds of slash separate components.
[[nodiscard]] bool isUnsafeRelativePath(const QString &relativePath);

/// Whether `path` exists as a symbolic link or belongs to another user, so that a private file below it could
/// be diverted or read by somebody else. A path that does not exist is not foreign. Always false on Windows.
[[nodiscard]] bool isForeignOrLink(const QString &path);

/// Whether opening `path` reads an ordinary file (a link is followed): a pipe or a device could block for
/// ever.
[[nodiscard]] bool isRegularFile(const QString &path);

} // namespace Zandrove::Platform
