// AppScan: what has no Uninstall key. Programs that have a folder only, and those that have
// only keys of this user's.

#include "inventory/AppScan.h"

#include "inventory/InstallPathSearch.h"
#include "inventory/Log.h"
#include "inventory/WordLists.h"
#include "support/Paths.h"

#include <QFileInfo>
#include <QLatin1StringView>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove {

using Platform::RegistryKey;

namespace {

const QString UserSoftware = u"HKEY_CURRENT_USER\\Software"_s;

/// Whether a folder below Program Files belongs to the system or to no single program.
bool isSharedFolder(const QString &lowerName)
{
    static constexpr std::array Parts = {
        "common files"_L1,    "internet explorer"_L1,    "windows defender"_L1,
        "windows nt"_L1,      "windowspowershell"_L1,    "windows mail"_L1,
        "windows media"_L1,   "windows photo"_L1,        "windows portable"_L1,
        "windows sidebar"_L1, "reference assemblies"_L1, "msbuild"_L1,
        "dotnet"_L1};
    static constexpr std::array Names = {"update"_L1, "updates"_L1, "updater"_L1};
    return lowerName.startsWith("windows"_L1) || lowerName.startsWith("microsoft"_L1) ||
           containsAny(lowerName, Parts) || equalsAny(lowerName, Names);
}

/// The program that a folder is about: the first one that bears its name, else the first one that neither
/// installs nor updates; empty where there is none.
QString mainProgramOf(const QStringList &programs, const QString &lowerFolder)
{
    static constexpr std::array Helpers = {"uninstall"_L1, "uninst"_L1, "update"_L1, "updater"_L1};
    QString chosen;
    for (const QString &program : programs) {
        const QString base = QFileInfo(program).completeBaseName().toLower();
        if (containsAny(base, Helpers))
            continue;
        if (base.contains(lowerFolder) || lowerFolder.contains(base))
            return program;
        if (chosen.isEmpty())
            chosen = program;
    }
    return chosen;
}

/// Keys below HKEY_CURRENT_USER\Software that hold no programs, or the system's own.
bool isSystemGroup(const QString &lowerName)
{
    static constexpr std::array Names = {"microsoft"_L1,
                                         "windows"_L1,
                                         "classes"_L1,
                                         "policies"_L1,
                                         "clients"_L1,
                                         "intel"_L1,
                                         "nvidia"_L1,
                                         "amd"_L1,
                                         "realtek"_L1,
                                         "khronos"_L1,
                                         "odbc"_L1,
                                         "wow6432node"_L1,
                                         "registered applications"_L1,
                                         "im providers"_L1,
                                         "appdatalow"_L1,
                                         "defaulticon"_L1,
                                         "shell"_L1,
                                         "appevents"_L1,
                                         "console"_L1,
                                         "control panel"_L1,
                                         "environment"_L1,
                                         "eudc"_L1,
                                         "keyboard layout"_L1,
                                         "network"_L1,
                                         "printers"_L1,
                                         "software"_L1,
                                         "system"_L1,
                                         "uninstall"_L1,
                                         "volatile environment"_L1};
    return equalsAny(lowerName, Names);
}

/// Keys that are a part of a program and not one themselves.
bool isPartOfAProgram(const QString &keyName)
{
    static constexpr std::array Names = {"default"_L1,       "settings"_L1, "preferences"_L1, "config"_L1,
                                         "configuration"_L1, "options"_L1,  "cache"_L1,       "temp"_L1,
                                         "common"_L1,        "shared"_L1,   "update"_L1,      "updater"_L1};
    return keyName.isEmpty() || keyName.startsWith(u'.') || equalsAny(keyName.toLower(), Names);
}

/// Whether `key` is a vendor's, with a key for each program, and not a program's own.
bool isPublisherDirectory(const RegistryKey &key)
{
    static constexpr std::array SignsOfAProgram = {
        "installpath"_L1,    "path"_L1,           "installlocation"_L1, "installdir"_L1, "version"_L1,
        "displayversion"_L1, "productversion"_L1, "exepath"_L1,         "exe"_L1,        "apppath"_L1};
    const QStringList children = key.subkeyNames();
    const QStringList values = key.valueNames();
    if (std::any_of(values.begin(), values.end(),
                    [](const QString &value) { return equalsAny(value.toLower(), SignsOfAProgram); }))
        return false;
    return std::any_of(children.begin(), children.end(), [&key](const QString &name) {
        const RegistryKey child = key.subkey(name);
        return !child.valueNames().isEmpty() || !child.subkeyNames().isEmpty();
    });
}

template <typename Names>
QString firstText(const RegistryKey &key, const Names &valueNames)
{
    for (const QLatin1StringView name : valueNames) {
        const QString text = key.text(name);
        if (!text.isEmpty())
            return text;
    }
    return {};
}

QString displayNameIn(const RegistryKey &key, const QString &keyName)
{
    static constexpr std::array Names = {"DisplayName"_L1, "ProductName"_L1, "Name"_L1, "AppName"_L1};
    const QString name = firstText(key, Names);
    return name.isEmpty() ? keyName : name;
}

QString versionIn(const RegistryKey &key)
{
    static constexpr std::array Names = {"Version"_L1, "DisplayVersion"_L1, "CurrentVersion"_L1,
                                         "ProductVersion"_L1};
    return firstText(key, Names);
}

/// The folder that the key itself names; that of the program where it names one.
QString folderIn(const RegistryKey &key)
{
    static constexpr std::array Names = {"InstallPath"_L1, "Path"_L1,          "InstallLocation"_L1,
                                         "InstallDir"_L1,  "Location"_L1,      "AppPath"_L1,
                                         "RootPath"_L1,    "BasePath"_L1,      "ExePath"_L1,
                                         "Exe"_L1,         "ExecutablePath"_L1};
    QString folder = firstText(key, Names);
    if (folder.endsWith(".exe"_L1, Qt::CaseInsensitive))
        folder = QFileInfo(withSlashes(folder)).absolutePath();
    return folder.isEmpty() ? folder : cleanPath(folder.remove(u'"'));
}

/// The names alone are a sign that a key belongs to a real program; no such value is read.
bool namesALicense(const QStringList &values)
{
    static constexpr std::array Signs = {"license"_L1,    "licence"_L1,    "serial"_L1,     "registration"_L1,
                                         "registered"_L1, "activation"_L1, "productkey"_L1, "product key"_L1};
    return std::any_of(values.begin(), values.end(),
                       [](const QString &value) { return containsAny(value.toLower(), Signs); });
}

QString programIn(const QString &folder)
{
    static constexpr std::array Helpers = {"uninstall"_L1, "update"_L1};
    const QStringList programs = diskFolders().files(folder, u"*.exe"_s);
    const auto program = std::find_if(programs.begin(), programs.end(), [](const QString &name) {
        return !containsAny(name.toLower(), Helpers);
    });
    return program == programs.end() ? QString() : folder + u'/' + *program;
}

/// What makes a key of this user's an application worth listing.
struct Evidence
{
    bool pathExists = false;
    bool hasSubstantialData = false;
    bool hasVersionInfo = false;
    bool hasLicenseData = false;
    qsizetype values = 0;
    qsizetype subkeys = 0;

    [[nodiscard]] bool suffices() const
    {
        return pathExists || hasSubstantialData || hasVersionInfo || hasLicenseData || values >= 3;
    }

    /// Bytes that the keys may take.
    [[nodiscard]] qint64 estimatedSize() const { return (values + subkeys * 10) * 100; }
};

Evidence evidenceIn(const RegistryKey &key, bool pathExists, const QString &version)
{
    const QStringList values = key.valueNames();
    Evidence evidence;
    evidence.pathExists = pathExists;
    evidence.values = values.size();
    evidence.subkeys = key.subkeyNames().size();
    evidence.hasSubstantialData = evidence.subkeys >= 2 || evidence.values >= 5;
    evidence.hasVersionInfo = !version.isEmpty();
    evidence.hasLicenseData = namesALicense(values);
    return evidence;
}

void logFind(const AppInfo &app, const QString &publisher)
{
    qCDebug(logInventory) << "[AppScanner] Found from HKCU\\Software:" << app.name
                          << "publisher:" << (publisher.isEmpty() ? u"(none)"_s : publisher)
                          << "version:" << app.version << "path:" << app.installPath
                          << "pathExists:" << app.canTransfer << "size:" << app.size
                          << "hkcuRegPath:" << app.hkcuRegPath << "canTransfer:" << app.canTransfer;
}

} // namespace

void AppScan::scanProgramFiles()
{
    QStringList roots = programFilesFolders();
    const QStringList onOtherDrives = programFoldersOnOtherDrives();
    for (const QString &folder : onOtherDrives) {
        qCDebug(logInventory) << "[AppScanner] Added scan path:" << folder;
        roots.append(folder);
    }
    QSet<QString> knownPaths;
    for (const AppInfo &app : m_apps.apps()) {
        if (!app.installPath.isEmpty())
            knownPaths.insert(comparablePath(app.installPath));
    }
    for (const QString &root : std::as_const(roots)) {
        if (root.isEmpty() || !diskFolders().isFolder(root))
            continue;
        const QStringList folders = diskFolders().subfolders(root);
        for (const QString &folder : folders) {
            if (isStopped())
                return;
            scanProgramFolder(root, folder, knownPaths);
        }
    }
}

void AppScan::scanProgramFolder(const QString &root, const QString &folder, const QSet<QString> &knownPaths)
{
    const QString path = cleanPath(root + u'/' + folder);
    const QString lowerFolder = folder.toLower();
    if (knownPaths.contains(path.toLower()) || isSharedFolder(lowerFolder))
        return;
    const QString program = mainProgramOf(diskFolders().files(path, u"*.exe"_s), lowerFolder);
    if (program.isEmpty() || !shouldAddApp(folder, path))
        return;
    AppInfo app;
    app.name = folder;
    app.installPath = path;
    app.size = folderSize(path);
    app.iconPath = path + u'/' + program;
    append(app);
    qCDebug(logInventory) << "  Found unregistered app:" << folder << "at" << path;
}

void AppScan::scanUserSoftware()
{
    for (const AppInfo &app : m_apps.apps())
        rememberName(app.name);
    const QStringList groups = RegistryKey(UserSoftware).subkeyNames();
    qCDebug(logInventory) << "[AppScanner] Scanning HKCU\\Software, found" << groups.size() << "groups";
    const int total = std::max(1, int(groups.size()));
    int counter = 0;
    for (const QString &group : groups) {
        if (isStopped())
            return;
        if (isSystemGroup(group.toLower()))
            continue;
        scanUserSoftwareGroup(group);
        counter += 15;
        m_hooks.announce(85 + counter / total, group);
    }
    qCDebug(logInventory) << "[AppScanner] HKCU\\Software scan complete, total apps now:"
                          << m_apps.apps().size();
}

void AppScan::scanUserSoftwareGroup(const QString &group)
{
    const RegistryKey key(UserSoftware + u'\\' + group);
    if (!isPublisherDirectory(key)) {
        processUserSoftwareEntry({}, group);
        return;
    }
    const QStringList children = key.subkeyNames();
    qCDebug(logInventory) << "[AppScanner] Detected publisher directory:" << group << "with"
                          << children.size() << "apps";
    for (const QString &child : children) {
        if (isStopped())
            return;
        processUserSoftwareEntry(group, child);
    }
}

void AppScan::processUserSoftwareEntry(const QString &publisher, const QString &keyName)
{
    if (isPartOfAProgram(keyName))
        return;
    AppInfo app;
    app.hkcuRegPath = UserSoftware + (publisher.isEmpty() ? QString() : u'\\' + publisher) + u'\\' + keyName;
    const RegistryKey key(app.hkcuRegPath);
    app.name = displayNameIn(key, keyName);
    if (isSystemApp(app.name, {}, publisher))
        return;

    app.installPath = folderIn(key);
    if (app.installPath.isEmpty() || !diskFolders().isFolder(app.installPath)) {
        app.installPath = searchFolder(keyName, publisher);
        if (app.installPath.isEmpty() && app.name != keyName)
            app.installPath = searchFolder(app.name, publisher);
    }
    if (isKnownName(app.name, keyName)) {
        qCDebug(logInventory) << "[processUserSoftwareEntry] Skip duplicate:" << app.name;
        return;
    }
    if (const AppInfo *const same = m_apps.findSameApp(identityOf(app.name))) {
        qCDebug(logInventory) << "[processUserSoftwareEntry] Skip same app:" << app.name
                              << "==" << same->name;
        return;
    }

    app.version = versionIn(key);
    app.canTransfer = !app.installPath.isEmpty() && diskFolders().isFolder(app.installPath);
    const Evidence evidence = evidenceIn(key, app.canTransfer, app.version);
    if (evidence.values == 0 && evidence.subkeys == 0)
        return;
    if (!evidence.suffices()) {
        qCDebug(logInventory) << "[processUserSoftwareEntry] Skip" << app.name
                              << "- pathExists:" << evidence.pathExists
                              << "hasSubstantialData:" << evidence.hasSubstantialData
                              << "hasVersionInfo:" << evidence.hasVersionInfo
                              << "hasLicenseData:" << evidence.hasLicenseData
                              << "childKeys:" << evidence.values;
        return;
    }
    app.size = app.canTransfer ? folderSize(app.installPath) : 0;
    if (app.size == 0)
        app.size = evidence.estimatedSize();
    if (app.canTransfer)
        app.iconPath = programIn(app.installPath);
    append(app);
    rememberName(app.name);
    m_knownNames.insert(keyName.toLower());
    logFind(app, publisher);
}

bool AppScan::isKnownName(const QString &displayName, const QString &keyName) const
{
    return m_knownNames.contains(displayName.toLower()) || m_knownNames.contains(keyName.toLower()) ||
           m_knownNames.contains(normalizeAppName(displayName));
}

void AppScan::rememberName(const QString &name)
{
    m_knownNames.insert(name.toLower());
    const QString form = normalizeAppName(name);
    if (!form.isEmpty())
        m_knownNames.insert(form);
}

} // namespace Zandrove
