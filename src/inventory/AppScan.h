#pragma once

#include "inventory/AppList.h"
#include "inventory/FolderSize.h"
#include "platform/Registry.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

namespace Zandrove {

/// What a scan for applications asks and tells while it runs, all on its own thread.
struct AppScanHooks
{
    StopCheck stop;
    /// A new step of the scan, or what it looks at: percent and translated text or name.
    std::function<void(int percent, const QString &text)> announce;
    /// A key was read that may have been an application.
    std::function<void(int percent, const QString &name)> report;
    std::function<void(int count)> found; ///< the applications in the list by now
};

/// One scan of this PC for applications: three passes over the Uninstall keys, one over the folders in which
/// programs lie, and one over the keys that programs keep for this user.
class AppScan final
{
public:
    explicit AppScan(AppScanHooks hooks);

    /// Runs all passes. The result is in the order of discovery; a stopped scan keeps what it has.
    QList<AppInfo> scanInstalledApps();

private:
    /// How the percent of the whole grows while a root is read.
    struct PercentRange
    {
        int start;
        int length;
    };

    void scanRegistryRoot(const QString &path, Platform::RegistryView view, PercentRange percents);
    bool scanUninstallKey(const Platform::RegistryKey &key, const QString &name);
    void scanProgramFiles();
    void scanProgramFolder(const QString &root, const QString &folder, const QSet<QString> &knownPaths);
    void scanUserSoftware();
    void scanUserSoftwareGroup(const QString &group);
    void processUserSoftwareEntry(const QString &publisher, const QString &keyName);

    [[nodiscard]] bool isStopped() const { return m_hooks.stop(); }
    [[nodiscard]] bool shouldAddApp(const QString &name, const QString &location);
    [[nodiscard]] qint64 folderSize(const QString &path) const;
    [[nodiscard]] QString searchFolder(const QString &name, const QString &publisher) const;
    [[nodiscard]] bool isKnownName(const QString &displayName, const QString &keyName) const;
    void rememberName(const QString &name);
    void append(const AppInfo &app);

    AppScanHooks m_hooks;
    AppList m_apps;
    QSet<QString> m_knownNames; ///< lower-cased and normalized, while user software is scanned
};

} // namespace Zandrove
