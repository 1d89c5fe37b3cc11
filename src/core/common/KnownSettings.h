#pragma once

#include <QLatin1StringView>
#include <QtGlobal>

#include <span>

class QString;

namespace Zandrove {

enum class SettingKind { Wallpaper, Taskbar, Explorer, Mouse, Keyboard, Power, Environment, Display, Sound };

/// A registry value that travels by name, and what it is where the registry doesn't hold it.
struct NamedSettingValue
{
    QLatin1StringView name;
    QLatin1StringView fallback;
};

/// A setting that can be moved: what both PCs know of it. The texts are untranslated, in the context of
/// SettingScanner; the registry keys are whole paths.
struct KnownSetting
{
    SettingKind kind;
    QLatin1StringView id; ///< its key on the wire
    const char *name;
    const char *category;
    const char *description;
    const char *announcement; ///< what a scan says when it comes to it, at so many percent
    int percent;
    qint64 size;                         ///< an estimate in bytes; 0 where the scan finds it out
    const char *logName;                 ///< in log lines
    QLatin1StringView registryPath;      ///< empty where it is no key
    QLatin1StringView otherRegistryPath; ///< in place of an empty first one
    std::span<const NamedSettingValue> values;
};

/// All of them, in the order in which they are scanned.
[[nodiscard]] std::span<const KnownSetting> knownSettings();

/// The one with that id; null for any other.
[[nodiscard]] const KnownSetting *knownSetting(const QString &id);
[[nodiscard]] const KnownSetting &knownSetting(SettingKind kind);

} // namespace Zandrove
