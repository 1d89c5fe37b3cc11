#include "inventory/SettingScanner.h"

#include "core/common/KnownSettings.h"
#include "inventory/Log.h"
#include "platform/Registry.h"
#include "platform/SystemParameters.h"
#include "support/Paths.h"

#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr qint64 BytesPerVariable = 256;

qsizetype valuesAtOrBelow(const Platform::RegistryKey &key)
{
    qsizetype count = key.valueNames().size();
    const QStringList subkeys = key.subkeyNames();
    for (const QString &name : subkeys)
        count += valuesAtOrBelow(key.subkey(name));
    return count;
}

/// False where there is no picture to move.
bool describeWallpaper(SettingInfo &setting)
{
    const QString picture = Platform::wallpaper().value_or(QString());
    const QFileInfo file(withSlashes(picture));
    if (picture.isEmpty() || !file.exists())
        return false;
    qCDebug(logInventory) << "[SettingScanner] Found wallpaper:" << picture;
    setting.value = picture;
    setting.size = file.size();
    return true;
}

void describeEnvironment(SettingInfo &setting)
{
    const qsizetype variables = valuesAtOrBelow(Platform::RegistryKey(setting.registryPath));
    setting.description = setting.description.arg(variables);
    setting.size = variables * BytesPerVariable;
}

} // namespace

SettingScanner::SettingScanner(QObject *parent)
    : QObject(parent)
{
}

SettingScanner::~SettingScanner()
{
    cancel();
}

void SettingScanner::start()
{
    const quint64 run = m_runs.begin();
    if (run == 0)
        return;
    Q_EMIT started();
    const QList<SettingInfo> settings = scanSettings(run);
    if (m_runs.end(run))
        Q_EMIT finished(settings);
}

void SettingScanner::cancel()
{
    m_runs.cancel();
    Q_EMIT cancelled();
}

std::optional<SettingInfo> SettingScanner::settingFor(const KnownSetting &entry)
{
    SettingInfo setting;
    setting.id = entry.id;
    setting.name = tr(entry.name);
    setting.category = tr(entry.category);
    setting.description = tr(entry.description);
    setting.registryPath = entry.registryPath;
    setting.size = entry.size;
    if (entry.kind == SettingKind::Wallpaper && !describeWallpaper(setting))
        return std::nullopt;
    if (entry.kind == SettingKind::Environment)
        describeEnvironment(setting);
    return setting;
}

QList<SettingInfo> SettingScanner::scanSettings(quint64 run)
{
    QList<SettingInfo> settings;
    for (const KnownSetting &entry : knownSettings()) {
        Q_EMIT progress(entry.percent, tr(entry.announcement));
        if (!m_runs.isCurrent(run))
            continue;
        if (const std::optional<SettingInfo> setting = settingFor(entry))
            settings.append(*setting);
    }
    Q_EMIT progress(100, tr("Scan complete"));
    qCDebug(logInventory) << "[SettingScanner] Found" << settings.size() << "settings";
    return settings;
}

} // namespace Zandrove
