#include "pipeline/DestinationGuard.h"

#include "pipeline/DestinationMap.h"
#include "platform/FileAttributes.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace Zandrove {

namespace {

/// Whether something below the temporary folder, from there down to `path`, is a link or another user's.
bool isDiverted(const QString &path)
{
    const QString temporary = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    QString place = path;
    while (place.size() > temporary.size()) {
        if (Platform::isForeignOrLink(place))
            return true;
        place = QFileInfo(place).path();
    }
    return false;
}

void removeTree(const QString &folder)
{
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        if (entries.fileInfo().isDir() && !Platform::isForeignOrLink(entry))
            removeTree(entry);
        else if (!QFile::remove(entry))
            QDir().rmdir(entry); // a link to a folder is itself one on some systems
    }
    QDir().rmdir(folder);
}

} // namespace

bool isSafeDestination(const QString &relativePath, const QString &destination)
{
    if (Platform::isUnsafeRelativePath(relativePath))
        return false;
    return !destination.startsWith(receivedAppsFolder() + u'/') || !isDiverted(destination);
}

bool removeReceived(const QString &folder)
{
    const QString place = QDir::cleanPath(folder);
    const QString top = QDir::cleanPath(receivedAppsFolder());
    if ((place != top && !place.startsWith(top + u'/')) || isDiverted(place))
        return false;
    removeTree(place);
    return !QFileInfo::exists(place);
}

} // namespace Zandrove
