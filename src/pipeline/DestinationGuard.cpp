#include "pipeline/DestinationGuard.h"

#include "pipeline/DestinationMap.h"
#include "platform/FileAttributes.h"

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

} // namespace

bool isSafeDestination(const QString &relativePath, const QString &destination)
{
    if (Platform::isUnsafeRelativePath(relativePath))
        return false;
    return !destination.startsWith(receivedAppsFolder() + u'/') || !isDiverted(destination);
}

bool isOwnReceivedAppsFolder()
{
    return !isDiverted(receivedAppsFolder());
}

} // namespace Zandrove
