#include "platform/SystemFolder.h"

#include <QDir>

#include <qt_windows.h>

#include <shlobj.h>

#include <array>
#include <optional>

namespace Zandrove::Platform {

namespace {

std::optional<int> numberOf(SpecialFolder folder)
{
    switch (folder) {
    case SpecialFolder::LocalAppData:
        return CSIDL_LOCAL_APPDATA;
    case SpecialFolder::RoamingAppData:
        return CSIDL_APPDATA;
    case SpecialFolder::CommonAppData:
        return CSIDL_COMMON_APPDATA;
    case SpecialFolder::StartMenuPrograms:
        return CSIDL_PROGRAMS;
    default:
        return std::nullopt;
    }
}

} // namespace

QString systemFolder(SpecialFolder folder)
{
    std::array<wchar_t, MAX_PATH> path = {};
    const std::optional<int> number = numberOf(folder);
    if (!number || SHGetFolderPathW(nullptr, *number, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK)
        return {};
    return QDir::fromNativeSeparators(QString::fromWCharArray(path.data()));
}

} // namespace Zandrove::Platform
