#include "platform/FolderEntries.h"

#include "platform/LastError.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

struct Close
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

bool isFileOrFolder(DIR *folder, const char *name)
{
    struct stat status = {};
    if (::fstatat(::dirfd(folder), name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return true; // to be told rather than left out
    if (!S_ISLNK(status.st_mode))
        return S_ISREG(status.st_mode) || S_ISDIR(status.st_mode);
    return ::fstatat(::dirfd(folder), name, &status, 0) == 0 && S_ISREG(status.st_mode);
}

void addEntry(FolderEntries &found, DIR *stream, const QString &folder, const char *name)
{
    const QByteArrayView bytes(name);
    if (bytes == "." || bytes == "..")
        return;
    if (QUtf8StringView(bytes).isValidUtf8())
        found.entries.append(QFileInfo(folder + u'/' + QString::fromUtf8(bytes)));
    else if (*name != '.' && isFileOrFolder(stream, name))
        found.unreadableNames.append(QString::fromUtf8(bytes));
}

} // namespace

FolderEntries folderEntries(const QString &folder)
{
    FolderEntries found;
    const QString stem = folder.endsWith(u'/') ? folder.chopped(1) : folder;
    const std::unique_ptr<DIR, Close> stream(::opendir(QFile::encodeName(folder).constData()));
    const dirent *entry = nullptr;
    while (stream && (errno = 0, entry = ::readdir(stream.get())) != nullptr)
        addEntry(found, stream.get(), stem, entry->d_name);
    if (errno != 0)
        found.error = errorText(lastErrorCode());
    return found;
}

} // namespace Zandrove::Platform
