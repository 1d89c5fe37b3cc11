#include "platform/SystemParameters.h"

#include "platform/windows/NativePath.h"

#include <QDir>

#include <qt_windows.h>

#include <shlobj.h>

#include <array>
#include <chrono>

using namespace std::chrono_literals;

namespace Zandrove::Platform {

namespace {

constexpr std::size_t WallpaperRoom = 260; // characters
constexpr auto BroadcastTimeout = 5000ms;
constexpr UINT SaveAndTell = SPIF_UPDATEINIFILE | SPIF_SENDCHANGE;

} // namespace

std::optional<QString> wallpaper()
{
    std::array<wchar_t, WallpaperRoom> path = {};
    if (SystemParametersInfoW(SPI_GETDESKWALLPAPER, UINT(path.size()), path.data(), 0) == 0)
        return std::nullopt;
    return QString::fromWCharArray(path.data());
}

bool setWallpaper(const QString &path)
{
    QString native = QDir::toNativeSeparators(path);
    return SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, native.data(), SaveAndTell) != 0;
}

bool setSystemParameter(SystemParameter parameter, int value)
{
    const bool byPointer = parameter == SystemParameter::MouseSpeed;
    void *const pointer = byPointer ? reinterpret_cast<void *>(static_cast<INT_PTR>(value)) : nullptr;
    return SystemParametersInfoW(static_cast<UINT>(parameter), byPointer ? 0 : static_cast<UINT>(value),
                                 pointer, SaveAndTell) != 0;
}

bool broadcastSettingChange(const QString &area)
{
    const auto text = area.isNull() ? LPARAM(0) : reinterpret_cast<LPARAM>(wide(area));
    return SendMessageTimeoutW(HWND_BROADCAST, WM_SETTINGCHANGE, 0, text, SMTO_ABORTIFHUNG,
                               UINT(BroadcastTimeout.count()), nullptr) != 0;
}

void notifyAssociationsChanged()
{
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

} // namespace Zandrove::Platform
