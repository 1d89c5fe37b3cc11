#include "settings/SettingApply.h"

#include "core/common/KnownSettings.h"
#include "platform/FileAttributes.h"
#include "platform/LastError.h"
#include "platform/Registry.h"
#include "platform/SystemParameters.h"
#include "settings/Log.h"
#include "settings/SettingPrograms.h"
#include "support/Json.h"
#include "support/ReplacingFile.h"

#include <QJsonObject>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using Zandrove::Platform::SystemParameter;

namespace Zandrove {

namespace {

constexpr int SlowestPointer = 1;
constexpr int FastestPointer = 20;

void writeValue(Platform::RegistryKey &key, const QString &name, const QString &value)
{
    if (!key.setText(name, value))
        qCDebug(logSettings) << "[Registry] Failed to write value:" << name;
}

/// Whether `name` is one component of a path and nothing else.
bool isPlainFileName(const QString &name)
{
    return !name.contains(u'/') && !name.contains(u'\\') && name != "."_L1 &&
           !Platform::isUnsafeRelativePath(name);
}

/// Where the system goes on reading the package's picture.
QString pictureFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + u"/Zandrove"_s;
}

ApplyResult applyWallpaper(const SettingPackage &package, const KnownSetting &setting)
{
    if (package.fileData.isEmpty() || package.fileName.isEmpty()) {
        qCDebug(logSettings) << "[Wallpaper] No wallpaper file data";
        return false;
    }
    const QString path = pictureFolder() + u'/' + package.fileName;
    removeAbandonedFiles(pictureFolder());
    ReplacingFile picture(path);
    if (!isPlainFileName(package.fileName) || !picture.open() || !picture.write(package.fileData) ||
        !picture.commit()) {
        qCDebug(logSettings) << "[Wallpaper] Failed to save wallpaper file" << picture.reason();
        return {false, picture.reason()};
    }
    qCDebug(logSettings) << "[Wallpaper] Saved to:" << path;

    Platform::RegistryKey desktop(setting.registryPath);
    for (const NamedSettingValue &value : setting.values)
        writeValue(desktop, value.name, package.metadata.value(value.name, value.fallback));
    if (!Platform::setWallpaper(path)) {
        const auto error = Platform::lastErrorCode();
        qCDebug(logSettings) << "[Wallpaper] SystemParametersInfo failed, error:" << error;
        return {false, Platform::errorText(error)};
    }
    qCDebug(logSettings) << "[Wallpaper] Applied successfully";
    return true;
}

ApplyResult applyTaskbar(const SettingPackage &package)
{
    if (package.registryData.isEmpty())
        return false;
    const bool imported = importRegistryData(package.registryData);
    const auto advanced = QByteArray::fromBase64(package.metadata.value(u"AdvancedSettings"_s).toLatin1());
    // Explorer's view options are an extra that the taskbar's own success doesn't hang on.
    static_cast<void>(importRegistryData(advanced));
    Platform::broadcastSettingChange(u"TraySettings"_s);
    qCDebug(logSettings) << "[Taskbar] Applied settings";
    return imported;
}

ApplyResult applyExplorer(const SettingPackage &package)
{
    if (package.registryData.isEmpty())
        return false;
    const bool imported = importRegistryData(package.registryData);
    Platform::broadcastSettingChange(QString());
    Platform::notifyAssociationsChanged();
    qCDebug(logSettings) << "[Explorer] Applied settings";
    return imported;
}

/// The key alone makes no difference before the next logon, so the calls count and its import does not.
ApplyResult applyMouse(const SettingPackage &package)
{
    static_cast<void>(importRegistryData(package.registryData));
    const auto &metadata = package.metadata;
    // What the registry calls MouseSpeed is the acceleration, which is no speed to set.
    const int speed = metadata.value(u"MouseSensitivity"_s).toInt();
    if (speed >= SlowestPointer && speed <= FastestPointer)
        Platform::setSystemParameter(SystemParameter::MouseSpeed, speed);
    if (const auto swap = metadata.constFind(u"SwapMouseButtons"_s); swap != metadata.cend())
        Platform::setSystemParameter(SystemParameter::MouseButtonSwap, *swap == "1"_L1 ? 1 : 0);
    if (const auto time = metadata.constFind(u"DoubleClickSpeed"_s); time != metadata.cend())
        Platform::setSystemParameter(SystemParameter::DoubleClickTime, time->toInt());
    qCDebug(logSettings) << "[Mouse] Applied settings";
    return true;
}

/// As with the mouse, the import alone decides nothing.
ApplyResult applyKeyboard(const SettingPackage &package)
{
    static_cast<void>(importRegistryData(package.registryData));
    const auto &metadata = package.metadata;
    const auto delay = metadata.constFind(u"KeyboardDelay"_s);
    const auto speed = metadata.constFind(u"KeyboardSpeed"_s);
    if (delay != metadata.cend() && speed != metadata.cend()) {
        Platform::setSystemParameter(SystemParameter::KeyboardDelay, delay->toInt());
        Platform::setSystemParameter(SystemParameter::KeyboardSpeed, speed->toInt());
    }
    qCDebug(logSettings) << "[Keyboard] Applied settings";
    return true;
}

ApplyResult applyPower(const SettingPackage &package)
{
    if (package.fileData.isEmpty()) {
        qCDebug(logSettings) << "[Power] No power scheme data";
        return false;
    }
    return importPowerScheme(package.fileData);
}

/// Writes each variable but PATH, which only the import of the whole key replaces.
void writeVariables(Platform::RegistryKey environment, const QJsonObject &variables)
{
    for (auto variable = variables.constBegin(); variable != variables.constEnd(); ++variable) {
        const QString name = variable.key();
        const QString value = variable.value().toString();
        if (name.compare("PATH"_L1, Qt::CaseInsensitive) == 0) {
            if (!environment.text(u"PATH"_s).contains(value))
                qCDebug(logSettings) << "[Environment] Skipping PATH merge for safety";
        } else if (!name.isEmpty() && variable.value().isString()) {
            writeValue(environment, name, value);
        }
    }
}

ApplyResult applyEnvironment(const SettingPackage &package, const KnownSetting &setting)
{
    bool applied = importRegistryData(package.registryData);
    const auto variables = package.metadata.constFind(u"EnvironmentVars"_s);
    if (variables != package.metadata.cend()) {
        writeVariables(Platform::RegistryKey(setting.registryPath),
                       parseJsonObject(variables->toUtf8()).value_or(QJsonObject()));
        applied = true;
    }
    Platform::broadcastSettingChange(u"Environment"_s);
    qCDebug(logSettings) << "[Environment] Applied settings";
    return applied;
}

ApplyResult applySound(const SettingPackage &package)
{
    if (package.registryData.isEmpty())
        return false;
    const bool imported = importRegistryData(package.registryData);
    qCDebug(logSettings) << "[Sound] Applied settings";
    return imported;
}

ApplyResult applyDisplay(const SettingPackage &package)
{
    const bool imported = importRegistryData(package.registryData);
    Platform::broadcastSettingChange(u"ImmersiveColorSet"_s);
    qCDebug(logSettings) << "[Display] Applied settings";
    return imported;
}

ApplyResult applyKnown(const SettingPackage &package, const KnownSetting &setting)
{
    switch (setting.kind) {
    case SettingKind::Wallpaper:
        return applyWallpaper(package, setting);
    case SettingKind::Taskbar:
        return applyTaskbar(package);
    case SettingKind::Explorer:
        return applyExplorer(package);
    case SettingKind::Mouse:
        return applyMouse(package);
    case SettingKind::Keyboard:
        return applyKeyboard(package);
    case SettingKind::Power:
        return applyPower(package);
    case SettingKind::Environment:
        return applyEnvironment(package, setting);
    case SettingKind::Display:
        return applyDisplay(package);
    case SettingKind::Sound:
        return applySound(package);
    }
    return false;
}

} // namespace

ApplyResult applySetting(const SettingPackage &package)
{
    qCDebug(logSettings) << "[SettingMigrator] Applying setting:" << package.key;
    const KnownSetting *const known = knownSetting(package.key);
    return known ? applyKnown(package, *known) : importRegistryData(package.registryData);
}

} // namespace Zandrove
