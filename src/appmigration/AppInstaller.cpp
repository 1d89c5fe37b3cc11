#include "appmigration/AppInstaller.h"

#include "appmigration/FileCopy.h"
#include "appmigration/Log.h"
#include "appmigration/RegistryText.h"
#include "platform/Identity.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"
#include "support/Paths.h"
#include "support/ReplacingFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

using Platform::SpecialFolder;
using Platform::specialFolder;

namespace {

/// How often it is told at the most how far the copying is.
constexpr auto ProgressInterval = 200ms;

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

/// How many files are to be copied from the folders in `base`.
int filesInFolders(const QString &base)
{
    int files = 0;
    for (const QString &folder : subfolders(base))
        files += countFiles(base + u'/' + folder);
    return files;
}

struct DataArea
{
    QString place; ///< in the package
    SpecialFolder target;
};

QList<DataArea> dataAreas()
{
    return {{u"AppData/Local"_s, SpecialFolder::LocalAppData},
            {u"AppData/Roaming"_s, SpecialFolder::RoamingAppData},
            {u"ProgramData"_s, SpecialFolder::CommonAppData}};
}

/// Copies what is going to be imported into the program's own data, for whoever wants to know afterwards.
/// Returns where to; nothing on failure.
QString keepCopyOfKeys(const QString &file, const QString &appName)
{
    const QString copy = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         u"/Zandrove/ImportedKeys/"_s + makeSafeName(appName) + u".reg"_s;
    removeAbandonedFiles(QFileInfo(copy).path());
    QFile keys(file);
    ReplacingFile kept(copy);
    if (keys.open(QIODevice::ReadOnly) && kept.open() && kept.write(keys.readAll()) && kept.commit()) {
        qCDebug(logAppMigration) << "  DEBUG: Copied registry to:" << copy;
        return copy;
    }
    qCDebug(logAppMigration) << "  DEBUG: Failed to copy registry file:" << kept.reason();
    return {};
}

} // namespace

/// One step of copying, as its progress is told.
struct AppInstaller::CopyStep
{
    QString status;
    int percent = 0;     ///< where it begins
    int nextPercent = 0; ///< where the next step begins
    int files = 0;       ///< in all its folders
    int filesDone = 0;   ///< in those folders that are through
    QElapsedTimer sinceProgress = {};
};

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
    package.files = {};
    package.importedKeysCopy.clear();
    package.filesToCopy = filesInFolders(package.receivedBasePath + u"/Install"_s);
    for (const DataArea &area : dataAreas())
        package.filesToCopy += filesInFolders(package.receivedBasePath + u'/' + area.place);

    package.errorMessage = runSteps(package);
    const bool installed = package.errorMessage.isEmpty();
    package.status = installed ? AppPackageInfo::Installed : AppPackageInfo::Failed;
    if (installed)
        Q_EMIT progress(package.name, 100, tr("Installation complete"));
    Q_EMIT finished(package.name, installed, package.errorMessage);
    if (installed)
        qCDebug(logAppMigration) << "AppInstaller: Successfully installed" << package.name;
    return installed;
}

/// Returns why the application isn't installed; nothing where it is.
QString AppInstaller::runSteps(AppPackageInfo &package)
{
    const bool isCopied = copyInstallFiles(package);
    if (isCopied && !isStopped() && !copyAppData(package))
        qCDebug(logAppMigration) << "  Warning: AppData copy failed, continuing...";
    if (isStopped())
        return tr("Stopped: %1 of %2 files copied").arg(package.files.copied).arg(package.filesToCopy);
    const QString gaps = fileGaps(package);
    if (!isCopied)
        return tr("Failed to copy install files") + (gaps.isEmpty() ? gaps : u": "_s + gaps);

    Q_EMIT progress(package.name, 60, tr("Importing registry..."));
    if (!importRegistry(package))
        qCDebug(logAppMigration) << "  Warning: Registry import failed, continuing...";
    if (isStopped())
        return tr("Stopped before all of its keys and shortcuts were there");
    Q_EMIT progress(package.name, 80, tr("Creating shortcuts..."));
    if (!createShortcuts(package))
        qCDebug(logAppMigration) << "  Warning: Shortcut creation failed, continuing...";
    return gaps;
}

bool AppInstaller::isStopped() const
{
    return m_stopped || QThread::currentThread()->isInterruptionRequested();
}

/// What the user is told of files that are not in their place; nothing where all are.
QString AppInstaller::fileGaps(const AppPackageInfo &package)
{
    QStringList gaps;
    if (package.filesMissing > 0)
        gaps.append(tr("Files of %1 that did not arrive: %2")
                        .arg(package.name, QString::number(package.filesMissing)));
    if (package.files.failed > 0) {
        const CopyFailure first = package.files.failures.value(0);
        gaps.append(tr("Files that could not be copied: %1 of %2 (%3: %4)")
                        .arg(QString::number(package.files.failed), QString::number(package.filesToCopy),
                             QDir::toNativeSeparators(first.path), first.reason));
    }
    return gaps.join(u"; "_s);
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

bool AppInstaller::copyInstallFiles(AppPackageInfo &package)
{
    const QString base = package.receivedBasePath + u"/Install"_s;
    CopyStep step = {tr("Copying install files..."), 10, 40, filesInFolders(base)};
    tellProgress(package.name, step, 0);
    if (!QDir(base).exists()) {
        qCDebug(logAppMigration) << "  No install directory found:" << base;
        return true;
    }
    const QStringList folders = subfolders(base);
    if (folders.isEmpty())
        qCDebug(logAppMigration) << "  No subdirectories in Install folder";
    const QString &target = package.targetInstallLocation;
    return std::all_of(folders.begin(), folders.end(), [&](const QString &folder) {
        const QString source = base + u'/' + folder;
        qCDebug(logAppMigration) << "  Copying:" << source << "->" << target;
        return !isTransitFolder(target) && copyFolder(package, step, source, target);
    });
}

bool AppInstaller::copyAppData(AppPackageInfo &package)
{
    const int files = package.filesToCopy - package.files.copied - package.files.failed;
    CopyStep step = {tr("Copying AppData files..."), 40, 60, files};
    tellProgress(package.name, step, 0);
    bool allCopied = true;
    for (const auto &[area, target] : dataAreas()) {
        const QString base = package.receivedBasePath + u'/' + area;
        const QStringList folders = subfolders(base);
        for (const QString &folder : folders) {
            const QString source = base + u'/' + folder;
            const QString destination = specialFolder(target) + u'/' + folder;
            qCDebug(logAppMigration) << qPrintable(u"  Copying %1:"_s.arg(area)) << source << "->"
                                     << destination;
            allCopied = copyFolder(package, step, source, destination) && allCopied;
        }
    }
    return allCopied;
}

/// False where not one file could be copied.
bool AppInstaller::copyFolder(AppPackageInfo &package, CopyStep &step, const QString &source,
                              const QString &target)
{
    const CopyResult result = copyDirectory(source, target, [&](int filesDone) {
        tellProgress(package.name, step, filesDone);
        return !isStopped();
    });
    step.filesDone += result.copied + result.failed;
    package.files.add(result);
    return result.copied > 0;
}

void AppInstaller::tellProgress(const QString &appName, CopyStep &step, int filesDone)
{
    if (step.sinceProgress.isValid() && !step.sinceProgress.hasExpired(ProgressInterval.count()))
        return;
    step.sinceProgress.start();
    const int done = std::min(step.filesDone + filesDone, step.files);
    const int points = (step.nextPercent - step.percent) * done / std::max(step.files, 1);
    Q_EMIT progress(appName, step.percent + points, step.status);
}

bool AppInstaller::importRegistry(AppPackageInfo &package) const
{
    const QString file = package.receivedBasePath + u"/registry.reg"_s;
    if (!QFileInfo::exists(file)) {
        qCDebug(logAppMigration) << "  No registry file found";
        return true;
    }
    package.importedKeysCopy = keepCopyOfKeys(file, package.name);
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
