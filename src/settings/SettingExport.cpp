#include "settings/SettingExport.h"

#include "core/common/KnownSettings.h"
#include "platform/Registry.h"
#include "platform/SystemParameters.h"
#include "settings/Log.h"
#include "settings/SettingPrograms.h"
#include "support/Json.h"
#include "support/Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>

#include <span>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// Fills in the key `path` and its content. False where there is no content.
bool exportKey(SettingPackage &package, const QString &path)
{
    package.registryPath = path;
    package.registryData = exportRegistryKey(path).value_or(QByteArray());
    return !package.registryData.isEmpty();
}

void addValues(SettingPackage &package, std::span<const NamedSettingValue> values)
{
    const Platform::RegistryKey key(package.registryPath);
    for (const NamedSettingValue &value : values)
        package.metadata.insert(value.name, key.text(value.name, value.fallback));
}

bool exportKeySetting(SettingPackage &package, const KnownSetting &setting)
{
    if (!exportKey(package, setting.registryPath))
        return false;
    addValues(package, setting.values);
    qCDebug(logSettings, "[%s] Exported settings", setting.logName);
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

bool exportWallpaper(SettingPackage &package, const KnownSetting &setting)
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
    exportKey(package, setting.registryPath);
    addValues(package, setting.values);
    qCDebug(logSettings) << "[Wallpaper] Exported successfully, file size:" << package.fileData.size();
    return true;
}

bool exportTaskbar(SettingPackage &package, const KnownSetting &setting)
{
    if (!exportKey(package, setting.registryPath))
        exportKey(package, setting.otherRegistryPath);
    const QString explorerKey = knownSetting(SettingKind::Explorer).registryPath;
    if (const std::optional<QByteArray> advanced = exportRegistryKey(explorerKey))
        package.metadata.insert(u"AdvancedSettings"_s, QString::fromLatin1(advanced->toBase64()));
    if (package.registryData.isEmpty())
        return false;
    qCDebug(logSettings) << "[Taskbar] Exported settings";
    return true;
}

bool exportExplorer(SettingPackage &package, const KnownSetting &setting)
{
    const bool exported = exportKey(package, setting.registryPath);
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

bool exportEnvironment(SettingPackage &package, const KnownSetting &setting)
{
    if (!exportKey(package, setting.registryPath))
        return false;
    const Platform::RegistryKey key(setting.registryPath);
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

bool fillPackage(SettingPackage &package, const KnownSetting &setting)
{
    switch (setting.kind) {
    case SettingKind::Wallpaper:
        return exportWallpaper(package, setting);
    case SettingKind::Taskbar:
        return exportTaskbar(package, setting);
    case SettingKind::Explorer:
        return exportExplorer(package, setting);
    case SettingKind::Power:
        return exportPower(package);
    case SettingKind::Environment:
        return exportEnvironment(package, setting);
    case SettingKind::Mouse:
    case SettingKind::Keyboard:
    case SettingKind::Display:
    case SettingKind::Sound:
        return exportKeySetting(package, setting);
    }
    return false;
}

} // namespace

std::optional<SettingPackage> exportSetting(const SettingInfo &setting)
{
    SettingPackage package;
    package.key = setting.id;
    package.name = setting.name;
    package.category = setting.category;
    qCDebug(logSettings) << "[SettingMigrator] Exporting:" << package.key << "-" << package.name;
    const KnownSetting *const known = knownSetting(setting.id);
    if (!(known ? fillPackage(package, *known) : exportNamedKey(package, setting.registryPath)))
        return std::nullopt;
    return package;
}

} // namespace Zandrove
