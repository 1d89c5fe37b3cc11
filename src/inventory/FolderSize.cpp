#include "inventory/FolderSize.h"

#include "support/Paths.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace Zandrove {

qint64 calculateDirSize(const QString &path, int maxFiles, const StopCheck &stop)
{
    const QString folder = withSlashes(path);
    if (folder.isEmpty() || !QDir(folder).exists())
        return 0;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDirIterator::Subdirectories);
    qint64 size = 0;
    for (int count = 0; count < maxFiles && files.hasNext(); ++count) {
        if (stop && stop())
            break;
        files.next();
        size += files.fileInfo().size();
    }
    return size;
}

} // namespace Zandrove
