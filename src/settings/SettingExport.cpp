#include "settings/SettingExport.h"

#include "platform/Registry.h"
#include "platform/SystemParameters.h"
#include "settings/Log.h"
#include "settings/SettingPrograms.h"
#include "support/Json.h"
#include "support/Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QLatin1StringView>

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// A value that travels by name, and what it is where the registry doesn't hold it.
struct NamedValue
{
    QLatin1StringView name;
    QLatin1StringView fallback;
};

/// A setting that is one key, some of whose values travel by name as well.
struct KeySetting
{
    QLatin1StringView id;
    QLatin1StringView registryPath;
    std::span<const NamedValue> values;
    const char *exportedLine;
};

constexpr auto WallpaperKey = "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1;
constexpr auto EnvironmentKey = "HKEY_CURRENT_USER\\Environment"_L1;
constexpr auto TaskbarKey =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StuckRects3"_L1;
constexpr auto OtherTaskbarKey =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Taskband"_L1;
constexpr auto ExplorerKey =
    "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"_L1;

constexpr std::array WallpaperValues = {NamedValue{"WallpaperStyle"_L1, "10"_L1},
                                        NamedValue{"TileWallpaper"_L1, "0"_L1}};
constexpr std::array MouseValues = {
    NamedValue{"MouseSpeed"_L1, "1"_L1}, NamedValue{"MouseSensitivity"_L1, "10"_L1},
    NamedValue{"SwapMouseButtons"_L1, "0"_L1}, NamedValue{"DoubleClickSpeed"_L1, "500"_L1}};
constexpr std::array KeyboardValues = {NamedValue{"KeyboardDelay"_L1, "1"_L1},
                                       NamedValue{"KeyboardSpeed"_L1, "31"_L1}};
constexpr std::array DisplayValues = {NamedValue{"AppsUseLightTheme"_L1, "1"_L1},
                                      NamedValue{"SystemUsesLightTheme"_L1, "1"_L1},
                                      NamedValue{"EnableTransparency"_L1, "1"_L1}};

constexpr std::array KeySettings = {
    KeySetting{"mouse"_L1, "HKEY_CURRENT_USER\\Control Panel\\Mouse"_L1, MouseValues,
               "[Mouse] Exported settings"},
    KeySetting{"keyboard"_L1, "HKEY_CURRENT_USER\\Control Panel\\Keyboard"_L1, KeyboardValues,
               "[Keyboard] Exported settings"},
    KeySetting{"sound"_L1, "HKEY_CURRENT_USER\\AppEvents\\Schemes"_L1, {}, "[Sound] Exported settings"},
    KeySetting{"display"_L1,
               "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"_L1,
               DisplayValues, "[Display] Exported settings"},
};

/// Fills in the key `path` and its content. False where there is no content.
bool exportKey(SettingPackage &package, const QString &path)
{
    package.registryPath = path;
    package.registryData = exportRegistryKey(path).value_or(QByteArray());
    return !package.registryData.isEmpty();
}

void addValues(SettingPackage &package, std::span<const NamedValue> values)
{
    const Platform::RegistryKey key(package.registryPath);
    for (const NamedValue &value : values)
        package.metadata.insert(value.name, key.text(value.name, value.fallback));
}

bool exportKeySetting(SettingPackage &package, const KeySetting &setting)
{
    if (!exportKey(package, setting.registryPath))
        return false;
    addValues(package, setting.values);
    qCDebug(logSettings) << setting.exportedLine;
    return true;
}

bool readPicture(SettingPackage &package, const QString &picture)
{
    QFile file(withSlashes(picture));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    package.fileData = file.readAll();
    package.fileName = QFileInfo(file).fileName();
    package.originalFilePath = picture;
    return file.error() == QFile::NoError;
}

bool exportWallpaper(SettingPackage &package)
{
    const std::optional<QString> picture = Platform::wallpaper();
    if (!picture) {
        qCDebug(logSettings) << "[Wallpaper] Failed to get wallpaper path";
        return false;
    }
    if (picture->isEmpty() || !QFileInfo::exists(withSlashes(*picture))) {
        qCDebug(logSettings) << "[Wallpaper] Wallpaper file not found:" << *picture;
        return false;
    }
    qCDebug(logSettings) << "[Wallpaper] Current wallpaper:" << *picture;
    if (!readPicture(package, *picture)) {
        qCDebug(logSettings) << "[Wallpaper] Failed to read wallpaper file";
        return false;
    }
    exportKey(package, WallpaperKey);
    addValues(package, WallpaperValues);
    qCDebug(logSettings) << "[Wallpaper] Exported successfully, file size:" << package.fileData.size();
    return true;
}

bool exportTaskbar(SettingPackage &package)
{
    if (!exportKey(package, TaskbarKey))
        exportKey(package, OtherTaskbarKey);
    if (const std::optional<QByteArray> advanced = exportRegistryKey(ExplorerKey))
        package.metadata.insert(u"AdvancedSettings"_s, QString::fromLatin1(advanced->toBase64()));
    if (package.registryData.isEmpty())
        return false;
    qCDebug(logSettings) << "[Taskbar] Exported settings";
    return true;
}

bool exportExplorer(SettingPackage &package)
{
    const bool exported = exportKey(package, ExplorerKey);
    qCDebug(logSettings) << "[Explorer] Exported settings, success:" << exported;
    return exported;
}

bool exportPower(SettingPackage &package)
{
    const std::optional<QByteArray> scheme = exportPowerScheme();
    if (!scheme)
        return false;
    package.fileData = *scheme;
    package.fileName = u"power_scheme.pow"_s;
    qCDebug(logSettings) << "[Power] Exported power scheme, size:" << package.fileData.size();
    return true;
}

bool exportEnvironment(SettingPackage &package)
{
    if (!exportKey(package, EnvironmentKey))
        return false;
    const Platform::RegistryKey key(EnvironmentKey);
    QJsonObject variables;
    const QStringList names = key.valueNames();
    for (const QString &name : names)
        variables.insert(name, key.text(name));
    package.metadata.insert(u"EnvironmentVars"_s, QString::fromUtf8(compactJson(variables)));
    qCDebug(logSettings) << "[Environment] Exported" << variables.size() << "variables";
    return true;
}

bool exportNamedKey(SettingPackage &package, const QString &path)
{
    if (!path.isEmpty())
        return exportKey(package, path);
    qCDebug(logSettings) << "[SettingMigrator] Unknown setting key:" << package.key;
    return false;
}

/// A setting that is gathered in a way of its own.
struct Exporter
{
    QLatin1StringView id;
    bool (*fill)(SettingPackage &package);
};

constexpr std::array Exporters = {
    Exporter{"wallpaper"_L1, exportWallpaper},     Exporter{"taskbar"_L1, exportTaskbar},
    Exporter{"explorer"_L1, exportExplorer},       Exporter{"power"_L1, exportPower},
    Exporter{"environment"_L1, exportEnvironment},
};

/// The entry of a table that is about the setting `id`; null where there is none.
template <typename Table>
auto entryFor(const Table &table, const QString &id)
{
    const auto entry =
        std::find_if(table.begin(), table.end(), [&id](const auto &known) { return known.id == id; });
    return entry == table.end() ? nullptr : &*entry;
}

bool fillPackage(SettingPackage &package, const SettingInfo &setting)
{
    if (const Exporter *const exporter = entryFor(Exporters, setting.id))
        return exporter->fill(package);
    if (const KeySetting *const known = entryFor(KeySettings, setting.id))
        return exportKeySetting(package, *known);
    return exportNamedKey(package, setting.registryPath);
}

} // namespace

std::optional<SettingPackage> exportSetting(const SettingInfo &setting)
{
    SettingPackage package;
    package.key = setting.id;
    package.name = setting.name;
    package.category = setting.category;
    qCDebug(logSettings) << "[SettingMigrator] Exporting:" << package.key << "-" << package.name;
    if (!fillPackage(package, setting))
        return std::nullopt;
    return package;
}

} // namespace Zandrove
