#include "support/Volumes.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace Zandrove {

Volume volumeOf(const QString &path)
{
    QString existing = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!QFileInfo::exists(existing) && QFileInfo(existing).path() != existing)
        existing = QFileInfo(existing).path();
    const QStorageInfo storage(existing);
    QString name = storage.rootPath();
    if (name.size() > 1 && name.endsWith(u'/'))
        name.chop(1);
    return {name, storage.isValid() ? storage.bytesAvailable() : -1};
}

} // namespace Zandrove
