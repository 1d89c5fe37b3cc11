#include "platform/FolderEntries.h"

#include "platform/LastError.h"
#include "platform/windows/NativePath.h"

#include <QDir>
#include <QDirIterator>

#include <qt_windows.h>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

/// The iterator below says nothing of a folder that it can't open.
QString listingError(const QString &folder)
{
    QString pattern = nativePath(folder);
    pattern += pattern.endsWith(u'\\') ? u"*"_s : u"\\*"_s;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(wide(pattern), &found);
    if (search != INVALID_HANDLE_VALUE) {
        FindClose(search);
        return {};
    }
    const unsigned long code = lastErrorCode();
    return code == ERROR_FILE_NOT_FOUND ? QString() : errorText(code); // an empty drive has no entries at all
}

} // namespace

FolderEntries folderEntries(const QString &folder)
{
    FolderEntries found;
    found.error = listingError(folder);
    if (!found.error.isEmpty())
        return found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo entry = entries.fileInfo();
        if (entry.fileName().isValidUtf16())
            found.entries.append(entry);
        else if (!entry.isHidden())
            found.unreadableNames.append(QString::fromUtf8(entry.fileName().toUtf8()));
    }
    return found;
}

} // namespace Zandrove::Platform
