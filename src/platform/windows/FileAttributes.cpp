#include "platform/FileAttributes.h"

#include "platform/windows/NativePath.h"

#include <QRegularExpression>
#include <QStringList>

#include <qt_windows.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

/// Whether the system takes a file of this name for a device, whatever folder it is in
/// and whatever follows a dot.
bool isDeviceName(const QString &name)
{
    static const QRegularExpression Device(
        u"^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(COM|LPT)[1-9\u00b9\u00b2\u00b3])[ ]*(\\.|$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return Device.match(name).hasMatch();
}

bool isUnsafeName(const QString &name)
{
    return name.endsWith(u'.') || name.endsWith(u' ') || isDeviceName(name);
}

qint64 joined(DWORD high, DWORD low)
{
    return qint64(quint64(high) << 32 | low);
}

std::optional<WIN32_FILE_ATTRIBUTE_DATA> attributesOf(const QString &path)
{
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (GetFileAttributesExW(wide(nativePath(path)), GetFileExInfoStandard, &data) == 0)
        return std::nullopt;
    return data;
}

} // namespace

bool isUnsafeRelativePath(const QString &relativePath)
{
    const QString slashed = QString(relativePath).replace(u'\\', u'/');
    const QStringList names = slashed.split(u'/');
    return slashed.contains(QChar::Null) || slashed.contains(u':') ||
           std::any_of(names.cbegin(), names.cend(), isUnsafeName);
}

bool isForeignOrLink(const QString &path)
{
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW(wide(nativePath(path)), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           IsReparseTagNameSurrogate(found.dwReserved0);
}

std::optional<qint64> realFileSize(const QString &path)
{
    const auto data = attributesOf(path);
    if (!data || (data->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return std::nullopt;
    return joined(data->nFileSizeHigh, data->nFileSizeLow);
}

bool isRegularFile(const QString &path)
{
    const auto data = attributesOf(path);
    return data && (data->dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0;
}

std::optional<FileStamp> fileStamp(const QString &path)
{
    const auto data = attributesOf(path);
    if (!data)
        return std::nullopt;
    return FileStamp{joined(data->nFileSizeHigh, data->nFileSizeLow),
                     joined(data->ftLastWriteTime.dwHighDateTime, data->ftLastWriteTime.dwLowDateTime)};
}

} // namespace Zandrove::Platform
