#include "platform/FileAttributes.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

bool isUnsafeRelativePath(const QString &relativePath)
{
    const QString slashed = QString(relativePath).replace(u'\\', u'/');
    return slashed.contains(QChar::Null) || slashed.split(u'/').contains(u".."_s);
}

bool isForeignOrLink(const QString &path)
{
    struct stat status = {};
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    return S_ISLNK(status.st_mode) || status.st_uid != ::geteuid();
}

std::optional<qint64> realFileSize(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() ? std::optional(file.size()) : std::nullopt;
}

bool isRegularFile(const QString &path)
{
    return QFileInfo(path).isFile();
}

std::optional<FileStamp> fileStamp(const QString &path)
{
    constexpr qint64 Nanoseconds = 1000000000;
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return FileStamp{status.st_size, status.st_mtim.tv_sec * Nanoseconds + status.st_mtim.tv_nsec};
}

} // namespace Zandrove::Platform
