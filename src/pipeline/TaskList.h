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
/// there down to the folder, or else the folder's own name; "Apps", where those of
/// applications go, gets a "_".
[[nodiscard]] QString taskRoot(const QString &folderPath, const StandardFolders &standard);

/// Something below a ticked folder that can't be sent.
struct TaskFailure
{
    QString path;     ///< on this PC; with a mark where its name is no text
    QString reason;   ///< translated
    qint64 bytes = 0; ///< of a file, where it is known
};

struct TaskList
{
    QList<FileTransferTask> tasks;
    QList<TaskFailure> failures; ///< what has no task and is not meant to stay behind
};

/// One task for each file below each selected folder, in the order of the file system. Hidden files are left
/// out and links to folders are not entered. Ids are taken from `nextTaskId`, which moves on. A file that two
/// folders bring to the same place is taken once; of two files for one place the first is. The second is a
/// failure, and so is a folder that can't be listed and a name that can't be told to the other PC. Whether a
/// file can be read shows only when it is sent.
[[nodiscard]] TaskList taskListFor(const QList<FolderInfo> &folders, int &nextTaskId);

} // namespace Zandrove
