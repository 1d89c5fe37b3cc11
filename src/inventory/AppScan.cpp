// AppScan: the order of the passes, and those over the Uninstall keys.

#include "inventory/AppScan.h"

#include "inventory/AppScanner.h"
#include "inventory/InstallPathSearch.h"
#include "inventory/Log.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

using Platform::RegistryKey;
using Platform::RegistryView;

namespace {

constexpr qint64 LargestEstimate = qint64(1) << 40; // KiB; what is beyond is no size

const QString MachineUninstall =
    u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;
const QString UserUninstall = u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;

qint64 estimatedSize(const RegistryKey &key)
{
    return std::clamp(key.number(u"EstimatedSize"_s), qint64(0), LargestEstimate) << 10;
}

} // namespace

AppScan::AppScan(AppScanHooks hooks)
    : m_hooks(std::move(hooks))
{
}

QList<AppInfo> AppScan::scanInstalledApps()
{
    m_hooks.announce(0, AppScanner::tr("Scanning installed applications..."));
    scanRegistryRoot(MachineUninstall, RegistryView::View64, {0, 50});
    scanRegistryRoot(MachineUninstall, RegistryView::View32, {50, 15});
    m_hooks.announce(65, AppScanner::tr("Scanning user installed applications..."));
    scanRegistryRoot(UserUninstall, RegistryView::Native, {65, 10});
    m_hooks.announce(75, AppScanner::tr("Scanning Program Files..."));
    scanProgramFiles();
    m_hooks.announce(85, AppScanner::tr("Scanning user software registry..."));
    scanUserSoftware();
    m_hooks.announce(100, AppScanner::tr("Scan complete"));
    qCDebug(logInventory) << "Found" << m_apps.apps().size() << "applications";
    return m_apps.apps();
}

void AppScan::scanRegistryRoot(const QString &path, RegistryView view, PercentRange percents)
{
    const RegistryKey root(path, view);
    const QStringList names = root.subkeyNames();
    const int total = std::max(1, int(names.size()));
    int read = 0;
    for (const QString &name : names) {
        if (isStopped())
            return;
        ++read;
        const RegistryKey key = root.subkey(name);
        const QString displayName = key.text(u"DisplayName"_s);
        if (displayName.isEmpty() || scanUninstallKey(key, displayName))
            m_hooks.report(read * percents.length / total + percents.start, displayName);
    }
}

/// Adds what an Uninstall key describes. False where it is no application or one that is known.
bool AppScan::scanUninstallKey(const RegistryKey &key, const QString &name)
{
    const QString location = key.text(u"InstallLocation"_s);
    const QString publisher = key.text(u"Publisher"_s);
    if (isSystemApp(name, location, publisher) || !shouldAddApp(name, location))
        return false;

    AppInfo app;
    app.name = name;
    app.version = key.text(u"DisplayVersion"_s);
    app.installPath = location;
    app.size = estimatedSize(key);
    const bool isThere = !location.isEmpty() && diskFolders().isFolder(location);
    const QString folder = isThere ? location : searchFolder(name, publisher);
    if (const qint64 measured = folderSize(folder); measured > 0) {
        app.size = measured;
        app.installPath = folder;
    }
    app.iconPath = findAppIconPath(key.text(u"DisplayIcon"_s), app.installPath, name);
    append(app);
    return true;
}

bool AppScan::shouldAddApp(const QString &name, const QString &location)
{
    return m_apps.shouldAddApp(name, location, [this](const QString &path) { return folderSize(path); });
}

qint64 AppScan::folderSize(const QString &path) const
{
    return calculateDirSize(path, MostFilesMeasured, m_hooks.stop);
}

QString AppScan::searchFolder(const QString &name, const QString &publisher) const
{
    return findInstallPath({name, name, publisher}, installSearchRoots(), diskFolders(), m_hooks.stop);
}

void AppScan::append(const AppInfo &app)
{
    m_apps.append(app);
    m_hooks.found(int(m_apps.apps().size()));
}

} // namespace Zandrove
