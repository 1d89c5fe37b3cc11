#include "appmigration/AppAnalyzer.h"

#include "appmigration/Log.h"
#include "inventory/PathExclusion.h"
#include "platform/FileAttributes.h"
#include "platform/Identity.h"
#include "platform/Registry.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"
#include "support/Paths.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace Zandrove {

using Platform::RegistryKey;
using Platform::SpecialFolder;
using Platform::specialFolder;

namespace {

/// Letters from which on a word of a name is looked for by itself.
constexpr qsizetype ShortestKeyword = 3;

const QStringList UninstallRoots = {
    u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s,
    u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s,
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s};
const QStringList SoftwareRoots = {u"HKEY_LOCAL_MACHINE\\SOFTWARE"_s,
                                   u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node"_s,
                                   u"HKEY_CURRENT_USER\\SOFTWARE"_s};

QStringList wordsOf(const QString &text)
{
    static const QRegularExpression Separators(u"[\\s\\-_\\.]+"_s);
    return text.split(Separators, Qt::SkipEmptyParts);
}

QString withoutSeparators(const QString &text)
{
    static const QRegularExpression Separator(u"[\\s\\-_\\.]"_s);
    return QString(text).remove(Separator);
}

void addUnlessPresent(QStringList &list, const QString &text)
{
    if (!list.contains(text, Qt::CaseInsensitive))
        list.append(text);
}

void addKeyword(QStringList &keywords, const QString &word)
{
    if (word.size() >= ShortestKeyword)
        addUnlessPresent(keywords, word);
}

/// The name itself, and its words. None for an empty name, which would claim everything.
QStringList nameAndWords(const QString &name)
{
    if (name.isEmpty())
        return {};
    QStringList keywords = {name};
    const QStringList words = wordsOf(name);
    for (const QString &word : words)
        addKeyword(keywords, word);
    return keywords;
}

QStringList installKeywords(const QString &name)
{
    QStringList keywords = nameAndWords(name);
    addKeyword(keywords, withoutSeparators(name));
    addKeyword(keywords, withoutSeparators(name).toLower());
    return keywords;
}

QStringList dataKeywords(const QString &name, const QString &publisher)
{
    QStringList keywords = nameAndWords(name);
    addKeyword(keywords, withoutSeparators(name).toLower());
    if (!publisher.isEmpty())
        keywords.append(publisher);
    return keywords;
}

/// The name and its first word: what keys and shortcuts are known by.
QStringList shortKeywords(const QString &name)
{
    static const QRegularExpression Separators(u"[\\s\\-_]+"_s);
    if (name.isEmpty())
        return {};
    QStringList keywords = {name};
    addKeyword(keywords, name.split(Separators, Qt::SkipEmptyParts).value(0));
    return keywords;
}

/// What a key or a shortcut is claimed by.
bool contains(const QString &name, const QString &keyword)
{
    return name.contains(keyword, Qt::CaseInsensitive);
}

/// What a folder is claimed by.
bool resembles(const QString &name, const QString &keyword)
{
    const QString plainName = withoutSeparators(name).toLower();
    const QString plainKeyword = withoutSeparators(keyword).toLower();
    return contains(name, keyword) || plainName.contains(plainKeyword) || plainKeyword.contains(plainName);
}

/// The first keyword that claims `name` by `rule`.
std::optional<QString> claimingKeyword(const QStringList &keywords, const QString &name,
                                       bool (*rule)(const QString &name, const QString &keyword))
{
    const auto keyword =
        std::find_if(keywords.begin(), keywords.end(), [&](const QString &word) { return rule(name, word); });
    return keyword == keywords.end() ? std::nullopt : std::optional(*keyword);
}

/// The one place where a user can see why something of another application goes along.
void logFound(const QString &kind, const QString &path, const QString &keyword)
{
    qCDebug(logAppMigration) << qPrintable(u"  Found %1:"_s.arg(kind)) << path
                             << "matched by keyword:" << keyword;
}

/// Adds to `found` the folders directly below `root` that a keyword claims.
void addMatchingFolders(QStringList &found, const QString &root, const QStringList &keywords,
                        const QString &kind)
{
    if (root.isEmpty() || !QDir(root).exists())
        return;
    const QStringList folders = QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &folder : folders) {
        const auto keyword = claimingKeyword(keywords, folder, resembles);
        const QString path = cleanPath(root + u'/' + folder);
        if (!keyword || found.contains(path, Qt::CaseInsensitive))
            continue;
        found.append(path);
        logFound(kind, path, *keyword);
    }
}

/// The folders that an application itself, and an Uninstall key of its name, tell of.
QStringList knownInstallDirs(const AppInfo &app)
{
    QStringList found;
    const auto addExisting = [&found](const QString &folder, const QString &source) {
        if (folder.isEmpty() || !QDir(withSlashes(folder)).exists())
            return;
        addUnlessPresent(found, cleanPath(folder));
        qCDebug(logAppMigration) << "  Install dir:" << folder << "named by:" << source;
    };
    addExisting(app.installPath, u"scan"_s);
    for (const QString &root : UninstallRoots) {
        const QString key = root + u'\\' + app.name;
        addExisting(RegistryKey(key).text(u"InstallLocation"_s), key);
    }
    return found;
}

bool isTooLargeForShortcut(const QString &path)
{
    const std::optional<qint64> size = Platform::realFileSize(path);
    if (!size || *size <= LargestShortcut)
        return false;
    qCDebug(logAppMigration) << "  Skipping oversized .lnk file:" << path << "real size:" << *size;
    return true;
}

bool leadsTo(const QString &target, const QString &installLocation)
{
    return !target.isEmpty() &&
           (installLocation.isEmpty() || comparablePath(target).startsWith(comparablePath(installLocation)));
}

void logPackage(const AppPackage &package)
{
    qCDebug(logAppMigration) << "  Install dirs:" << package.installDirs.size();
    qCDebug(logAppMigration) << "  AppData Local:" << package.appDataLocal.size();
    qCDebug(logAppMigration) << "  AppData Roaming:" << package.appDataRoaming.size();
    qCDebug(logAppMigration) << "  ProgramData:" << package.programData.size();
    qCDebug(logAppMigration) << "  Registry keys:" << package.registryKeys.size();
    qCDebug(logAppMigration) << "  Shortcuts:" << package.shortcuts.size();
    qCDebug(logAppMigration) << "  Total size:" << package.totalSize;
    qCDebug(logAppMigration) << "  File count:" << package.fileCount;
}

} // namespace

AppPackage analyzeApp(const AppInfo &app, const StopCheck &stop)
{
    AppPackage package;
    package.name = app.name;
    package.version = app.version;
    package.installLocation = app.installPath;
    package.sourceUser = Platform::userName();
    qCDebug(logAppMigration) << "Analyzing app:" << app.name;

    package.installDirs = findInstallDirs(app);
    package.appDataLocal = findAppData(app, package.publisher, true);
    package.appDataRoaming = findAppData(app, package.publisher, false);
    package.programData = findProgramData(app, package.publisher);
    package.registryKeys = findRegistryKeys(app);
    package.shortcuts = findShortcuts(app, package.installLocation);

    for (const QStringList *folders :
         {&package.installDirs, &package.appDataLocal, &package.appDataRoaming, &package.programData}) {
        for (const QString &folder : *folders) {
            const FilteredFiles files = measureFilteredFiles(folder, stop);
            package.totalSize += files.size;
            package.fileCount += files.count;
        }
    }
    logPackage(package);
    return package;
}

QStringList findInstallDirs(const AppInfo &app)
{
    QStringList found = knownInstallDirs(app);
    const QStringList keywords = installKeywords(app.name);
    qCDebug(logAppMigration) << "  Search keywords for" << app.name << ":" << keywords;
    for (const QString &root : {u"C:/Program Files"_s, u"C:/Program Files (x86)"_s})
        addMatchingFolders(found, root, keywords, u"install dir"_s);
    return found;
}

QStringList findAppData(const AppInfo &app, const QString &publisher, bool local)
{
    QStringList keywords = dataKeywords(app.name, publisher);
    const QStringList words = wordsOf(publisher);
    for (const QString &word : words)
        addKeyword(keywords, word);
    QStringList found;
    const QString root = specialFolder(local ? SpecialFolder::LocalAppData : SpecialFolder::RoamingAppData);
    addMatchingFolders(found, root, keywords, local ? u"AppData Local"_s : u"AppData Roaming"_s);
    return found;
}

QStringList findProgramData(const AppInfo &app, const QString &publisher)
{
    QStringList found;
    addMatchingFolders(found, specialFolder(SpecialFolder::CommonAppData), dataKeywords(app.name, publisher),
                       u"ProgramData"_s);
    return found;
}

QStringList findRegistryKeys(const AppInfo &app)
{
    QStringList keys;
    if (!app.hkcuRegPath.isEmpty()) {
        keys.append(app.hkcuRegPath);
        qCDebug(logAppMigration) << "  Added HKCU registry path from scan:" << app.hkcuRegPath;
    }
    const QStringList keywords = shortKeywords(app.name);
    for (const QString &root : UninstallRoots + SoftwareRoots) {
        const QStringList subkeys = RegistryKey(root).subkeyNames();
        for (const QString &subkey : subkeys) {
            const QString key = root + u'\\' + subkey;
            const auto keyword = claimingKeyword(keywords, subkey, contains);
            if (!keyword || keys.contains(key))
                continue;
            keys.append(key);
            logFound(u"registry key"_s, key, *keyword);
        }
    }
    return keys;
}

QList<ShortcutInfo> findShortcuts(const AppInfo &app, const QString &installLocation)
{
    const QStringList keywords = shortKeywords(app.name);
    QList<ShortcutInfo> shortcuts;
    for (const QString &location :
         {specialFolder(SpecialFolder::StartMenuPrograms),
          QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
          u"C:/ProgramData/Microsoft/Windows/Start Menu/Programs"_s, u"C:/Users/Public/Desktop"_s}) {
        if (location.isEmpty())
            continue;
        QDirIterator files(location, {u"*.lnk"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const auto keyword = claimingKeyword(keywords, QFileInfo(path).completeBaseName(), contains);
            if (!keyword || isTooLargeForShortcut(path))
                continue;
            const ShortcutInfo shortcut = parseShortcut(path);
            if (!leadsTo(shortcut.targetPath, installLocation))
                continue;
            shortcuts.append(shortcut);
            logFound(u"shortcut"_s, path, *keyword);
        }
    }
    return shortcuts;
}

ShortcutInfo parseShortcut(const QString &path)
{
    const Platform::ShellLink link = Platform::readShellLink(path).value_or(Platform::ShellLink{});
    return {path,          link.path,      link.arguments,  link.workingDirectory,
            link.iconPath, link.iconIndex, link.description};
}

FilteredFiles measureFilteredFiles(const QString &folder, const StopCheck &stop)
{
    FilteredFiles measured;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext() && !(stop && stop())) {
        const QString path = files.next();
        if (isExcludedFile(path)) {
            qCDebug(logAppMigration) << "  [EXCLUDED]" << path;
            continue;
        }
        measured.size += files.fileInfo().size();
        ++measured.count;
    }
    return measured;
}

} // namespace Zandrove
