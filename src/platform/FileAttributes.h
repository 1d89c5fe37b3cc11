#pragma once

#include <QString>

#include <optional>

/// What the portable file classes do not tell about a path.
namespace Zandrove::Platform {

/// Whether `relativePath`, which a peer sent, is one that this system would read as something else than plain
/// nested names: a ".." component or a NUL character, and on Windows also a colon, a component that ends in a
/// dot or a blank (there "t.txt." is "t.txt") and one that means a device, such as "CON" or "NUL.txt". Both
/// kinds of slash separate components.
[[nodiscard]] bool isUnsafeRelativePath(const QString &relativePath);

/// Whether `path` exists as a symbolic link or belongs to another user, so that a private file below it could
/// be diverted or read by somebody else. A path that does not exist is not foreign. On Windows links and
/// junctions are told, owners are not.
[[nodiscard]] bool isForeignOrLink(const QString &path);

/// The size of the file itself in bytes, where the portable classes would give that of a shortcut's target.
/// Nothing where there is no such file.
[[nodiscard]] std::optional<qint64> realFileSize(const QString &path);

/// Whether opening `path` reads an ordinary file (a symbolic link is followed): a pipe or a device could
/// block for ever.
[[nodiscard]] bool isRegularFile(const QString &path);

/// What changes with every rewriting of a file.
struct FileStamp
{
    qint64 size = 0;     ///< bytes
    qint64 modified = 0; ///< time of the last change, in the system's own finest unit

    [[nodiscard]] bool operator==(const FileStamp &) const = default;
};

/// The stamp of the file at `path` (on Windows that of a symbolic link itself); nothing where there is none.
[[nodiscard]] std::optional<FileStamp> fileStamp(const QString &path);

} // namespace Zandrove::Platform
