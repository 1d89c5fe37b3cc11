#include "platform/OwnedFile.h"

#include "platform/LastError.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace Zandrove::Platform {

namespace {

/// Locks the file for as long as it is open. False when somebody else was quicker. Where the file system has
/// no locks the file is used without, and never taken for a leftover.
bool own(int file)
{
    return ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

/// For file systems that can't rename without replacing: the name is taken by a second name of the file, or,
/// where a file has but one, by an empty file that is then replaced.
bool renameByClaim(const char *from, const char *to)
{
    if (::link(from, to) == 0)
        return ::unlink(from) == 0;
    if (errno == EEXIST)
        return false;
    const int claim = ::open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (claim < 0)
        return false;
    ::close(claim);
    if (::rename(from, to) == 0)
        return true;
    const int error = errno;
    ::unlink(to);
    errno = error;
    return false;
}

bool renameWithoutReplacing(const char *from, const char *to)
{
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return true;
    return errno != EEXIST && (errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP) &&
           renameByClaim(from, to);
}

} // namespace

bool OwnedFile::create(const QString &path)
{
    m_writtenBytes = 0;
    close();
    m_path.clear();
    const int file = ::open(QFile::encodeName(path).constData(),
                            O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (file < 0)
        return fail();
    m_handle = file;
    m_path = path;
    if (own(file))
        return true;
    m_error = lastErrorCode();
    remove();
    return false;
}

bool OwnedFile::write(const char *bytes, qint64 count)
{
    while (count > 0) {
        const ssize_t written = ::write(int(m_handle), bytes, size_t(count));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return fail();
        bytes += written;
        count -= written;
        m_writtenBytes += written;
    }
    return true;
}

bool OwnedFile::flush()
{
    // Network file systems write at each close, also of a second descriptor; the first keeps the lock.
    const int copy = ::dup(int(m_handle));
    return (copy >= 0 && ::close(copy) == 0) || fail();
}

OwnedFile::Renaming OwnedFile::rename(const QString &target, bool mayReplace)
{
    const QByteArray from = QFile::encodeName(m_path);
    const QByteArray to = QFile::encodeName(target);
    const bool renamed = mayReplace ? ::rename(from.constData(), to.constData()) == 0
                                    : renameWithoutReplacing(from.constData(), to.constData());
    if (!renamed) {
        m_error = lastErrorCode();
        return m_error == EEXIST && !mayReplace ? Renaming::Occupied : Renaming::Failed;
    }
    m_path.clear();
    close();
    return Renaming::Renamed;
}

void OwnedFile::remove()
{
    if (!m_path.isEmpty())
        ::unlink(QFile::encodeName(m_path).constData());
    m_path.clear();
    close();
}

void OwnedFile::close()
{
    if (isOpen())
        ::close(int(m_handle));
    m_handle = NoHandle;
}

bool OwnedFile::fail()
{
    m_error = lastErrorCode();
    return false;
}

bool removeAbandoned(const QString &path, qint64)
{
    const QByteArray name = QFile::encodeName(path);
    const int file = ::open(name.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return false;
    struct stat status = {};
    const bool removed = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) &&
                         status.st_uid == ::geteuid() && ::flock(file, LOCK_EX | LOCK_NB) == 0 &&
                         ::unlink(name.constData()) == 0;
    ::close(file);
    return removed;
}

} // namespace Zandrove::Platform
