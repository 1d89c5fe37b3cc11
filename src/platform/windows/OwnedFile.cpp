#include "platform/OwnedFile.h"

#include "platform/LastError.h"
#include "platform/windows/NativePath.h"

#include <QThread>

#include <qt_windows.h>

#include <algorithm>

namespace Zandrove::Platform {

namespace {

/// A virus scanner, say, holds a new file for a moment.
template <typename Call>
bool tryForAMoment(Call call)
{
    constexpr int Attempts = 10;
    constexpr unsigned long PauseMs = 50;
    for (int attempt = 1; !call(); ++attempt) {
        const DWORD error = GetLastError();
        const bool passes =
            error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED;
        if (!passes || attempt == Attempts) {
            SetLastError(error);
            return false;
        }
        QThread::msleep(PauseMs);
    }
    return true;
}

/// Whether the process `owner` lives and began before the file was written last: a number is given anew.
bool isAlive(qint64 owner, const FILETIME &lastWritten)
{
    const HANDLE process = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, DWORD(owner));
    if (process == nullptr)
        return GetLastError() == ERROR_ACCESS_DENIED;
    FILETIME begun = {};
    FILETIME ended = {};
    FILETIME kernel = {};
    FILETIME user = {};
    DWORD code = 0;
    const bool known = GetProcessTimes(process, &begun, &ended, &kernel, &user) != 0 &&
                       GetExitCodeProcess(process, &code) != 0;
    CloseHandle(process);
    return !known || (code == STILL_ACTIVE && CompareFileTime(&begun, &lastWritten) <= 0);
}

} // namespace

bool OwnedFile::create(const QString &path)
{
    m_writtenBytes = 0;
    close();
    m_path.clear();
    // Whoever doesn't share the right to delete it keeps others from removing it.
    const HANDLE file = CreateFileW(wide(nativePath(path)), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return fail();
    m_handle = reinterpret_cast<qintptr>(file);
    m_path = path;
    return true;
}

bool OwnedFile::write(const char *bytes, qint64 count)
{
    constexpr qint64 LargestWrite = 1 << 30;
    while (count > 0) {
        DWORD written = 0;
        if (WriteFile(reinterpret_cast<HANDLE>(m_handle), bytes, DWORD(std::min(count, LargestWrite)),
                      &written, nullptr) == 0)
            return fail();
        if (written == 0) {
            m_error = ERROR_WRITE_FAULT;
            return false;
        }
        bytes += written;
        count -= written;
        m_writtenBytes += written;
    }
    return true;
}

bool OwnedFile::flush()
{
    return true; // a write has told, and to wait for the disk itself would cost each file its time
}

OwnedFile::Renaming OwnedFile::rename(const QString &target, bool mayReplace)
{
    close(); // an open file has no other name
    const QString from = nativePath(m_path);
    const QString to = nativePath(target);
    SetFileAttributesW(wide(from), FILE_ATTRIBUTE_ARCHIVE);
    const DWORD flags = mayReplace ? MOVEFILE_REPLACE_EXISTING : 0;
    if (!tryForAMoment([&] { return MoveFileExW(wide(from), wide(to), flags) != 0; })) {
        m_error = lastErrorCode();
        const bool occupied = m_error == ERROR_ALREADY_EXISTS || m_error == ERROR_FILE_EXISTS;
        return occupied && !mayReplace ? Renaming::Occupied : Renaming::Failed;
    }
    m_path.clear();
    return Renaming::Renamed;
}

void OwnedFile::remove()
{
    close();
    if (!m_path.isEmpty())
        tryForAMoment([path = nativePath(m_path)] { return DeleteFileW(wide(path)) != 0; });
    m_path.clear();
}

void OwnedFile::close()
{
    if (isOpen())
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    m_handle = NoHandle;
}

bool OwnedFile::fail()
{
    m_error = lastErrorCode();
    return false;
}

bool removeAbandoned(const QString &path, qint64 owner)
{
    const QString native = nativePath(path);
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (GetFileAttributesExW(wide(native), GetFileExInfoStandard, &data) == 0 ||
        (data.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) != 0)
        return false;
    return !isAlive(owner, data.ftLastWriteTime) && DeleteFileW(wide(native)) != 0;
}

} // namespace Zandrove::Platform
