#pragma once

#include "appmigration/AppPackage.h"
#include "core/common/Records.h"
#include "inventory/FolderSize.h"

/// Finds what belongs to an application. Nothing keeps a record of that, so its name decides: words of it are
/// looked for in the names of folders, registry keys and shortcuts. The rules are wide on purpose, one word
/// of three letters claims a folder, and the log tells what claimed it.
///
/// All of these read the disk and the registry and may be called on any thread. What can't be read counts as
/// not there.
namespace Zandrove {

/// Everything that belongs to `app`, with the total of the files that do not stay behind. A folder in two
/// lists counts twice. Ends early, with an incomplete package, once `stop` says so.
[[nodiscard]] AppPackage analyzeApp(const AppInfo &app, const StopCheck &stop = {});

/// Its folders below the Program Files, the one that it was found in first.
[[nodiscard]] QStringList findInstallDirs(const AppInfo &app);

/// Its folders in the user's application data, by the words of its name and of `publisher`, which may be
/// empty. `local` chooses the data that stay on a PC, else those that roam.
[[nodiscard]] QStringList findAppData(const AppInfo &app, const QString &publisher, bool local);

/// The same in the application data of all users, where a publisher counts as a whole only.
[[nodiscard]] QStringList findProgramData(const AppInfo &app, const QString &publisher);

/// Its registry keys: that of the scan, Uninstall keys, and keys directly below those of software.
[[nodiscard]] QStringList findRegistryKeys(const AppInfo &app);

/// Its shortcuts in the Start Menus and on the desktops: those that lead below `installLocation`, or
/// anywhere when that is empty.
[[nodiscard]] QList<ShortcutInfo> findShortcuts(const AppInfo &app, const QString &installLocation);

/// The size from which on a file is no shortcut any more, whatever its name.
constexpr qint64 LargestShortcut = 10240; // bytes

/// The shortcut `path`; a field that can't be read is empty.
[[nodiscard]] ShortcutInfo parseShortcut(const QString &path);

/// Files below a folder that do not stay behind, hidden ones included and links left out.
struct FilteredFiles
{
    qint64 size = 0; ///< bytes
    int count = 0;
};

/// Counts and adds up the files at and below `folder`, and logs the ones that stay behind. What there was so
/// far once `stop` says so.
[[nodiscard]] FilteredFiles measureFilteredFiles(const QString &folder, const StopCheck &stop = {});

} // namespace Zandrove
