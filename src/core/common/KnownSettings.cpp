#include "core/common/KnownSettings.h"

#include <QString>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr std::array WallpaperValues = {NamedSettingValue{"WallpaperStyle"_L1, "10"_L1},
                                        NamedSettingValue{"TileWallpaper"_L1, "0"_L1}};
constexpr std::array MouseValues = {
    NamedSettingValue{"MouseSpeed"_L1, "1"_L1}, NamedSettingValue{"MouseSensitivity"_L1, "10"_L1},
    NamedSettingValue{"SwapMouseButtons"_L1, "0"_L1}, NamedSettingValue{"DoubleClickSpeed"_L1, "500"_L1}};
constexpr std::array KeyboardValues = {NamedSettingValue{"KeyboardDelay"_L1, "1"_L1},
                                       NamedSettingValue{"KeyboardSpeed"_L1, "31"_L1}};
constexpr std::array DisplayValues = {NamedSettingValue{"AppsUseLightTheme"_L1, "1"_L1},
                                      NamedSettingValue{"SystemUsesLightTheme"_L1, "1"_L1},
                                      NamedSettingValue{"EnableTransparency"_L1, "1"_L1}};

constexpr std::array Settings = {
    KnownSetting{.kind = SettingKind::Wallpaper,
                 .id = "wallpaper"_L1,
                 .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Desktop Wallpaper"),
                 .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Personalization"),
                 .description =
                     QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Current desktop background image"),
                 .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning system settings..."),
                 .percent = 0,
                 .size = 0,
                 .logName = "Wallpaper",
                 .registryPath = "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1,
                 .otherRegistryPath = {},
                 .values = WallpaperValues},
    KnownSetting{
        .kind = SettingKind::Taskbar,
        .id = "taskbar"_L1,
        .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Taskbar Settings"),
        .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Personalization"),
        .description =
            QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Taskbar position, auto-hide, and icon settings"),
        .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning taskbar settings..."),
        .percent = 15,
        .size = 1024,
        .logName = "Taskbar",
        .registryPath =
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StuckRects3"_L1,
        .otherRegistryPath =
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Taskband"_L1,
        .values = {}},
    KnownSetting{
        .kind = SettingKind::Explorer,
        .id = "explorer"_L1,
        .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "File Explorer Settings"),
        .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "System"),
        .description =
            QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Show hidden files, file extensions, view options"),
        .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning file explorer settings..."),
        .percent = 30,
        .size = 2048,
        .logName = "Explorer",
        .registryPath =
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"_L1,
        .otherRegistryPath = {},
        .values = {}},
    KnownSetting{.kind = SettingKind::Mouse,
                 .id = "mouse"_L1,
                 .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Mouse Settings"),
                 .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Hardware"),
                 .description = QT_TRANSLATE_NOOP("Zandrove::SettingScanner",
                                                  "Mouse speed, button configuration, scroll settings"),
                 .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning mouse settings..."),
                 .percent = 45,
                 .size = 512,
                 .logName = "Mouse",
                 .registryPath = "HKEY_CURRENT_USER\\Control Panel\\Mouse"_L1,
                 .otherRegistryPath = {},
                 .values = MouseValues},
    KnownSetting{
        .kind = SettingKind::Keyboard,
        .id = "keyboard"_L1,
        .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Keyboard Settings"),
        .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Hardware"),
        .description = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Keyboard repeat rate and delay"),
        .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning keyboard settings..."),
        .percent = 55,
        .size = 256,
        .logName = "Keyboard",
        .registryPath = "HKEY_CURRENT_USER\\Control Panel\\Keyboard"_L1,
        .otherRegistryPath = {},
        .values = KeyboardValues},
    KnownSetting{.kind = SettingKind::Power,
                 .id = "power"_L1,
                 .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Power Settings"),
                 .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "System"),
                 .description = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Current power plan settings"),
                 .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning power settings..."),
                 .percent = 65,
                 .size = 4096,
                 .logName = "Power",
                 .registryPath = ""_L1,
                 .otherRegistryPath = {},
                 .values = {}},
    KnownSetting{.kind = SettingKind::Environment,
                 .id = "environment"_L1,
                 .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "User Environment Variables"),
                 .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "System"),
                 .description = QT_TRANSLATE_NOOP("Zandrove::SettingScanner",
                                                  "User-defined environment variables (%1 variables)"),
                 .announcement =
                     QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning environment variables..."),
                 .percent = 75,
                 .size = 0,
                 .logName = "Environment",
                 .registryPath = "HKEY_CURRENT_USER\\Environment"_L1,
                 .otherRegistryPath = {},
                 .values = {}},
    KnownSetting{
        .kind = SettingKind::Display,
        .id = "display"_L1,
        .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Theme & Display Settings"),
        .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Personalization"),
        .description =
            QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Dark/Light mode, transparency, color settings"),
        .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning display settings..."),
        .percent = 85,
        .size = 512,
        .logName = "Display",
        .registryPath =
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"_L1,
        .otherRegistryPath = {},
        .values = DisplayValues},
    KnownSetting{.kind = SettingKind::Sound,
                 .id = "sound"_L1,
                 .name = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Sound Scheme"),
                 .category = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Personalization"),
                 .description =
                     QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "System sounds and notification settings"),
                 .announcement = QT_TRANSLATE_NOOP("Zandrove::SettingScanner", "Scanning sound settings..."),
                 .percent = 92,
                 .size = 2048,
                 .logName = "Sound",
                 .registryPath = "HKEY_CURRENT_USER\\AppEvents\\Schemes"_L1,
                 .otherRegistryPath = {},
                 .values = {}},
};

template <typename Predicate>
const KnownSetting *findSetting(Predicate predicate)
{
    const auto found = std::find_if(Settings.begin(), Settings.end(), predicate);
    return found == Settings.end() ? nullptr : &*found;
}

} // namespace

std::span<const KnownSetting> knownSettings()
{
    return Settings;
}

const KnownSetting *knownSetting(const QString &id)
{
    return findSetting([&id](const KnownSetting &setting) { return setting.id == id; });
}

const KnownSetting &knownSetting(SettingKind kind)
{
    return *findSetting([kind](const KnownSetting &setting) { return setting.kind == kind; });
}

} // namespace Zandrove
