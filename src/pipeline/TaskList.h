#pragma once

#include "core/common/Records.h"

#include <QList>
#include <QMap>
#include <QString>

/// The Old PC's side of the layout that both PCs share: a selected folder becomes a flat list of files whose
/// relative paths name a standard folder by a neutral word.
namespace Zandrove {

/// A standard folder of this PC.
struct StandardFolder
{
    QString rootWord;     ///< "Desktop", "Documents", "Downloads", "Pictures", "Music" or "Videos"
    qsizetype length = 0; ///< of its cleaned path in its own letter case
};

/// Standard folders by cleaned, lower-cased path. Where several are the same folder the last word holds.
using StandardFolders = QMap<QString, StandardFolder>;

/// This user's standard folders.
[[nodiscard]] StandardFolders standardFolders();

/// The root of the relative paths for files below `folderPath`: a standard folder's word, with the path from
/// there down to the folder, or else the folder's own name; "Apps", where those of applications go, gets a
/// "_".
[[nodiscard]] QString taskRoot(const QString &folderPath, const StandardFolders &standard);

/// One task for each file below each selected folder that exists, in the order of the file system. Hidden
/// files are left out and links to folders are not entered. Ids are taken from `nextTaskId`, which moves on.
/// A file that two folders bring to the same place is taken once.
[[nodiscard]] QList<FileTransferTask> taskListFor(const QList<FolderInfo> &folders, int &nextTaskId);

} // namespace Zandrove
