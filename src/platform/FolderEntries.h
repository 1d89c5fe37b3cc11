#pragma once

#include <QFileInfo>
#include <QList>
#include <QString>

namespace Zandrove::Platform {

/// What a folder holds, in the order of the file system.
struct FolderEntries
{
    QList<QFileInfo> entries; ///< all but "." and "..", hidden ones included
    /// Files and folders whose names are no text (on Linux: no UTF-8), so that they can't be asked for by
    /// name; with a mark for what can't be shown. Hidden ones and links to folders are not among them.
    QStringList unreadableNames;
    QString error; ///< the system's words for why the folder can't be listed, or not to its end; else empty
};

[[nodiscard]] FolderEntries folderEntries(const QString &folder);

} // namespace Zandrove::Platform
