#pragma once

#include "inventory/FolderSize.h"
#include "inventory/FolderView.h"

#include <QString>
#include <QStringList>

/// Finds an application's folder by its names, and the file that stands for it.
namespace Zandrove {

/// What an application may be filed under; `publisher` may be empty.
struct AppNames
{
    QString appName;
    QString displayName;
    QString publisher = {};
};

/// The folders below which applications lie on this PC, in the order in which they are searched. Some may be
/// empty texts or not exist.
[[nodiscard]] QStringList installSearchRoots();

/// The folder names that are tried as they stand, the likeliest first.
[[nodiscard]] QStringList candidateFolderNames(const AppNames &names);

/// The folder of the application, which holds at least one program; empty where none of `roots` has it, or
/// once `stop` says so. In each root an exact name goes before one that differs in letter case, in
/// punctuation, or that is merely alike.
[[nodiscard]] QString findInstallPath(const AppNames &names, const QStringList &roots,
                                      const FolderView &folders = diskFolders(), const StopCheck &stop = {});

/// The file whose icon stands for an application: the one that `displayIcon` of the registry names, the main
/// program in `installPath`, or an icon file there. Empty where there is none.
[[nodiscard]] QString findAppIconPath(const QString &displayIcon, const QString &installPath,
                                      const QString &displayName, const FolderView &folders = diskFolders());

} // namespace Zandrove
