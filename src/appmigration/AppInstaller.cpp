#include "appmigration/AppInstaller.h"

#include "appmigration/FileCopy.h"
#include "appmigration/Log.h"
#include "appmigration/RegistryText.h"
#include "platform/Identity.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"
#include "support/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <functional>

using namespace Qt::StringLiterals;

namespace Zandrove {

using Platform::SpecialFolder;
using Platform::specialFolder;

namespace {

/// `path` with slashes only and none at its end, so that a drive becomes "D:" and the root is empty.
QString cleanedLocation(const QString &path)
{
    QString cleaned = cleanPath(path);
    while (cleaned.endsWith(u'/'))
        cleaned.chop(1);
    return cleaned;
}

/// A folder's name for an application that tells of none.
QString fallbackFolderName(const QString &appName)
{
    const qsizetype version = appName.indexOf(u" version "_s);
    const QString name = version > 0 ? appName.first(version) : appName;
    return name.simplified().replace(u' ', u'_');
}

QStringList subfolders(const QString &folder)
{
    return QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks);
}

/// Where nothing may be installed, because what is received lies there and is removed in the end.
bool isTransitFolder(const QString &path)
{
    return isWithin(path, QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/Zandrove"_s);
}

/// A copy of what is going to be imported, for whoever wants to know afterwards.
void keepCopyOnDesktop(const QString &file, const QString &appName)
{
    const QString copy = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + u"/debug_"_s +
                         appName + u"_registry.reg"_s;
    // The name is the peer's, and what it leads to is removed first.
    const bool safe = isUsableAppName(appName);
    if (safe)
        QFile::remove(copy);
    if (safe && QFile::copy(file, copy))
        qCDebug(logAppMigration) << "  DEBUG: Copied registry to:" << copy;
    else
        qCDebug(logAppMigration) << "  DEBUG: Failed to copy registry file to desktop";
}

} // namespace

AppInstaller::AppInstaller(QObject *parent)
    : QObject(parent)
    , m_currentUser(Platform::userName())
{
}

bool AppInstaller::install(AppPackageInfo &package)
{
    qCDebug(logAppMigration) << "AppInstaller: Installing" << package.name;
    package.status = AppPackageInfo::Installing;
    package.targetInstallLocation = getTargetInstallPath(package);
    qCDebug(logAppMigration) << "  Target install location:" << package.targetInstallLocation;

    Q_EMIT progress(package.name, 10, tr("Copying install files..."));
    if (!copyInstallFiles(package)) {
        package.status = AppPackageInfo::Failed;
        Q_EMIT finished(package.name, false, package.errorMessage);
        return false;
    }
    Q_EMIT progress(package.name, 40, tr("Copying AppData files..."));
    if (!copyAppData(package))
        qCDebug(logAppMigration) << "  Warning: AppData copy failed, continuing...";
    Q_EMIT progress(package.name, 60, tr("Importing registry..."));
    if (!importRegistry(package))
        qCDebug(logAppMigration) << "  Warning: Registry import failed, continuing...";
    Q_EMIT progress(package.name, 80, tr("Creating shortcuts..."));
    if (!createShortcuts(package))
        qCDebug(logAppMigration) << "  Warning: Shortcut creation failed, continuing...";

    Q_EMIT progress(package.name, 100, tr("Installation complete"));
    package.status = AppPackageInfo::Installed;
    Q_EMIT finished(package.name, true, QString());
    qCDebug(logAppMigration) << "AppInstaller: Successfully installed" << package.name;
    return true;
}

QString AppInstaller::getTargetInstallPath(const AppPackageInfo &package) const
{
    qCDebug(logAppMigration) << "AppInstaller::getTargetInstallPath()";
    qCDebug(logAppMigration) << "  appName:" << package.name;
    qCDebug(logAppMigration) << "  originalInstallLocation:" << package.originalInstallLocation;
    qCDebug(logAppMigration) << "  sourceUser:" << package.sourceUser;
    const QString cleaned = cleanedLocation(package.originalInstallLocation);
    qCDebug(logAppMigration) << "  Cleaned original path:" << cleaned;

    if (cleaned.isEmpty()) {
        const QString target =
            specialFolder(SpecialFolder::ProgramFiles) + u'/' + fallbackFolderName(package.name);
        qCDebug(logAppMigration) << "  Default target install location:" << target;
        return target;
    }
    if (cleaned.contains("Program Files"_L1, Qt::CaseInsensitive)) {
        const QString folder = QFileInfo(cleaned).fileName();
        qCDebug(logAppMigration) << "  Extracted app dir name:" << folder;
        const bool is32Bit = cleaned.contains("(x86)"_L1, Qt::CaseInsensitive);
        const QString target =
            specialFolder(is32Bit ? SpecialFolder::ProgramFilesX86 : SpecialFolder::ProgramFiles) + u'/' +
            folder;
        qCDebug(logAppMigration) << "  Target install location:" << target;
        return target;
    }
    if (cleaned.contains("/Users/"_L1, Qt::CaseInsensitive)) {
        const QString target = cleanPath(withUserFolders(cleaned, package.sourceUser, m_currentUser));
        qCDebug(logAppMigration) << "  User path remapped:" << target;
        return target;
    }
    return cleaned;
}

bool AppInstaller::copyInstallFiles(AppPackageInfo &package) const
{
    const QString base = package.receivedBasePath + u"/Install"_s;
    if (!QDir(base).exists()) {
        qCDebug(logAppMigration) << "  No install directory found:" << base;
        return true;
    }
    const QStringList folders = subfolders(base);
    if (folders.isEmpty()) {
        qCDebug(logAppMigration) << "  No subdirectories in Install folder";
        return true;
    }
    const QString &target = package.targetInstallLocation;
    for (const QString &folder : folders) {
        const QString source = base + u'/' + folder;
        qCDebug(logAppMigration) << "  Copying:" << source << "->" << target;
        if (isTransitFolder(target) || !copyDirectory(source, target)) {
            package.errorMessage = tr("Failed to copy install files");
            return false;
        }
    }
    return true;
}

bool AppInstaller::copyAppData(const AppPackageInfo &package) const
{
    bool allCopied = true;
    const auto copyArea = [&](const QString &area, SpecialFolder target) {
        const QString base = package.receivedBasePath + u'/' + area;
        const QStringList folders = subfolders(base);
        for (const QString &folder : folders) {
            const QString source = base + u'/' + folder;
            const QString destination = specialFolder(target) + u'/' + folder;
            qCDebug(logAppMigration) << qPrintable(u"  Copying %1:"_s.arg(area)) << source << "->"
                                     << destination;
            allCopied = copyDirectory(source, destination) && allCopied;
        }
    };
    copyArea(u"AppData/Local"_s, SpecialFolder::LocalAppData);
    copyArea(u"AppData/Roaming"_s, SpecialFolder::RoamingAppData);
    copyArea(u"ProgramData"_s, SpecialFolder::CommonAppData);
    return allCopied;
}

bool AppInstaller::importRegistry(const AppPackageInfo &package) const
{
    const QString file = package.receivedBasePath + u"/registry.reg"_s;
    if (!QFileInfo::exists(file)) {
        qCDebug(logAppMigration) << "  No registry file found";
        return true;
    }
    keepCopyOnDesktop(file, package.name);
    return importRegistryFile(file, package.sourceUser);
}

bool AppInstaller::createShortcuts(const AppPackageInfo &package) const
{
    bool allCreated = true;
    const auto createIn = [&](const QString &name, const std::function<QString()> &targetFolder) {
        const QString folder = package.receivedBasePath + u"/Shortcuts/"_s + name;
        // QDir::System, because a shortcut whose target is not on this PC counts as a broken link.
        const QStringList files = QDir(folder).entryList({u"*.lnk"_s}, QDir::Files | QDir::System);
        for (const QString &file : files) {
            const QString target = targetFolder() + u'/' + file;
            allCreated = recreateShortcut(folder + u'/' + file, target, package) && allCreated;
        }
    };
    createIn(u"Desktop"_s, [] { return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation); });
    createIn(u"StartMenu"_s, [] { return specialFolder(SpecialFolder::StartMenuPrograms); });
    return allCreated;
}

bool AppInstaller::recreateShortcut(const QString &source, const QString &target,
                                    const AppPackageInfo &package) const
{
    Platform::ShellLink link = Platform::readShellLink(source).value_or(Platform::ShellLink{});
    if (link.path.isEmpty()) {
        qCDebug(logAppMigration) << "  Failed to parse shortcut:" << source;
        return false;
    }
    for (QString *path : {&link.path, &link.workingDirectory, &link.iconPath})
        *path = remapPath(*path, package);
    qCDebug(logAppMigration) << "  Creating shortcut:" << target;
    qCDebug(logAppMigration) << "    Target:" << link.path;
    const bool created = Platform::writeShellLink(target, link);
    qCDebug(logAppMigration) << "    Shortcut created:" << (created ? "success" : "failed");
    return created;
}

/// The install folder is known with slashes only, and a shortcut that has backslashes does not match it.
QString AppInstaller::remapPath(const QString &path, const AppPackageInfo &package) const
{
    const QString oldLocation = cleanedLocation(package.originalInstallLocation);
    const QString newLocation = cleanedLocation(package.targetInstallLocation);
    QString remapped = path;
    if (!path.isEmpty() && !oldLocation.isEmpty() && !newLocation.isEmpty())
        remapped.replace(oldLocation, newLocation, Qt::CaseInsensitive);
    return withUserFolders(remapped, package.sourceUser, m_currentUser);
}

} // namespace Zandrove
