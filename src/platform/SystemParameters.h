#pragma once

#include <QString>

#include <optional>

/// Settings that the running system takes at once, and telling its programs of a change.
///
/// Elsewhere than on Windows the wallpaper is the value "Wallpaper" of HKEY_CURRENT_USER\Control
/// Panel\Desktop in the registry; everything else changes nothing, succeeds while there is a registry file,
/// and writes one log line that begins with "[SystemParameters]" and gives the action and its arguments.
namespace Zandrove::Platform {

/// The path of the desktop's picture; empty for a plain colour, nothing where the system does not tell.
[[nodiscard]] std::optional<QString> wallpaper();

/// Shows the picture `path` on the desktop from now on. On failure lastErrorCode() says why.
[[nodiscard]] bool setWallpaper(const QString &path);

/// What the system calls by these numbers.
enum class SystemParameter : unsigned {
    KeyboardSpeed = 11,   ///< repeat rate, 0 to 31
    KeyboardDelay = 23,   ///< wait before the first repeat, 0 to 3
    DoubleClickTime = 32, ///< milliseconds
    MouseButtonSwap = 33, ///< 1 for swapped, 0 for not
    MouseSpeed = 113,     ///< 1 to 20
};

/// Sets a parameter for this user, now and for later sessions. False where the system refuses.
bool setSystemParameter(SystemParameter parameter, int value);

/// Tells every window that the settings called `area` have changed; a null text stands for all of them. Takes
/// up to 5 seconds for each window that doesn't answer. False where that failed.
bool broadcastSettingChange(const QString &area);

/// Tells the shell that what it shows of file types is out of date.
void notifyAssociationsChanged();

} // namespace Zandrove::Platform
