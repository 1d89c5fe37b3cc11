#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace Zandrove {

/// The folders of a PC as a search sees them: the disk's, or a made-up listing.
/// Names come without their folder.
struct FolderView
{
    std::function<bool(const QString &path)> exists; ///< a file or a folder
    std::function<bool(const QString &path)> isFolder;
    /// In the order of the file system.
    std::function<QStringList(const QString &folder)> subfolders;
    /// Those that match `pattern`, such as "*.exe", in any letter case; by name.
    std::function<QStringList(const QString &folder, const QString &pattern)> files;
};

/// The disk. Both kinds of slash separate the parts of a path.
[[nodiscard]] const FolderView &diskFolders();

/// The texts such as "C:" of all fixed drives but the system's own.
[[nodiscard]] QStringList otherFixedDrives();

/// The folders on those drives in which programs are usually kept, as far as they exist.
[[nodiscard]] QStringList programFoldersOnOtherDrives();

/// `ProgramFiles` and `ProgramFiles(x86)` of the environment; empty texts where they are not set.
[[nodiscard]] QStringList programFilesFolders();

} // namespace Zandrove
