#include "inventory/SettingScanner.h"

#include "inventory/Log.h"
#include "platform/Registry.h"
#include "platform/SystemParameters.h"
#include "support/Paths.h"

#include <QFileInfo>
#include <QLatin1StringView>

#include <array>
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

/// One line of the catalogue; the texts are untranslated, sizes are estimates in bytes.
struct SettingScanner::CatalogueEntry
{
    int percent;
    const char *announcement;
    QLatin1StringView id;
    const char *name;
    const char *category;
    const char *description;
    QLatin1StringView registryPath;
    qint64 size;
};

std::span<const SettingScanner::CatalogueEntry> SettingScanner::catalogue()
{
    static constexpr std::array Catalogue = {
        CatalogueEntry{0, QT_TR_NOOP("Scanning system settings..."), "wallpaper"_L1,
                       QT_TR_NOOP("Desktop Wallpaper"), QT_TR_NOOP("Personalization"),
                       QT_TR_NOOP("Current desktop background image"),
                       "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1, 0},
        CatalogueEntry{
            15, QT_TR_NOOP("Scanning taskbar settings..."), "taskbar"_L1, QT_TR_NOOP("Taskbar Settings"),
            QT_TR_NOOP("Personalization"), QT_TR_NOOP("Taskbar position, auto-hide, and icon settings"),
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StuckRects3"_L1,
            1024},
        CatalogueEntry{
            30, QT_TR_NOOP("Scanning file explorer settings..."), "explorer"_L1,
            QT_TR_NOOP("File Explorer Settings"), QT_TR_NOOP("System"),
            QT_TR_NOOP("Show hidden files, file extensions, view options"),
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"_L1, 2048},
        CatalogueEntry{45, QT_TR_NOOP("Scanning mouse settings..."), "mouse"_L1, QT_TR_NOOP("Mouse Settings"),
                       QT_TR_NOOP("Hardware"),
                       QT_TR_NOOP("Mouse speed, button configuration, scroll settings"),
                       "HKEY_CURRENT_USER\\Control Panel\\Mouse"_L1, 512},
        CatalogueEntry{55, QT_TR_NOOP("Scanning keyboard settings..."), "keyboard"_L1,
                       QT_TR_NOOP("Keyboard Settings"), QT_TR_NOOP("Hardware"),
                       QT_TR_NOOP("Keyboard repeat rate and delay"),
                       "HKEY_CURRENT_USER\\Control Panel\\Keyboard"_L1, 256},
        CatalogueEntry{65, QT_TR_NOOP("Scanning power settings..."), "power"_L1, QT_TR_NOOP("Power Settings"),
                       QT_TR_NOOP("System"), QT_TR_NOOP("Current power plan settings"), ""_L1, 4096},
        CatalogueEntry{75, QT_TR_NOOP("Scanning environment variables..."), "environment"_L1,
                       QT_TR_NOOP("User Environment Variables"), QT_TR_NOOP("System"),
                       QT_TR_NOOP("User-defined environment variables (%1 variables)"),
                       "HKEY_CURRENT_USER\\Environment"_L1, 0},
        CatalogueEntry{
            85, QT_TR_NOOP("Scanning display settings..."), "display"_L1,
            QT_TR_NOOP("Theme & Display Settings"), QT_TR_NOOP("Personalization"),
            QT_TR_NOOP("Dark/Light mode, transparency, color settings"),
            "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"_L1, 512},
        CatalogueEntry{92, QT_TR_NOOP("Scanning sound settings..."), "sound"_L1, QT_TR_NOOP("Sound Scheme"),
                       QT_TR_NOOP("Personalization"), QT_TR_NOOP("System sounds and notification settings"),
                       "HKEY_CURRENT_USER\\AppEvents\\Schemes"_L1, 2048},
    };
    return Catalogue;
}

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

std::optional<SettingInfo> SettingScanner::settingFor(const CatalogueEntry &entry)
{
    SettingInfo setting;
    setting.id = entry.id;
    setting.name = tr(entry.name);
    setting.category = tr(entry.category);
    setting.description = tr(entry.description);
    setting.registryPath = entry.registryPath;
    setting.size = entry.size;
    if (entry.id == "wallpaper"_L1 && !describeWallpaper(setting))
        return std::nullopt;
    if (entry.id == "environment"_L1)
        describeEnvironment(setting);
    return setting;
}

QList<SettingInfo> SettingScanner::scanSettings(quint64 run)
{
    QList<SettingInfo> settings;
    for (const CatalogueEntry &entry : catalogue()) {
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
