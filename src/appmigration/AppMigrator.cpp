#include "appmigration/AppMigrator.h"

#include "appmigration/AppAnalyzer.h"
#include "appmigration/AppInstaller.h"
#include "appmigration/AppMessages.h"
#include "appmigration/Log.h"
#include "appmigration/RegistryExport.h"
#include "inventory/PathExclusion.h"
#include "peer/Protocol.h"
#include "platform/FileAttributes.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>
#include <QThread>

#include <algorithm>
#include <optional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// How long a paused run waits before it looks again.
constexpr unsigned long PausePoll = 100; // milliseconds

/// Two applications with one safe name share a place on the way, where the later one's files win.
void logSharedNames(const QList<AppPackage> &packages)
{
    QSet<QString> names;
    for (const AppPackage &package : packages) {
        const QString safe = makeSafeName(package.name).toLower();
        if (names.contains(safe))
            qCDebug(logAppMigration) << "  [WARN] Another application travels under the same name:"
                                     << package.name;
        names.insert(safe);
    }
}

} // namespace

AppMigrator::AppMigrator(QObject *parent)
    : QObject(parent)
{
}

void AppMigrator::start(const QList<AppInfo> &apps)
{
    QStringList installPaths;
    for (const AppInfo &app : apps) {
        if (!app.installPath.isEmpty())
            installPaths.append(app.installPath);
    }
    setKnownInstallPaths(installPaths);
    if (m_running || m_stopped)
        return;
    m_apps = apps;
    m_packages.clear();
    m_running = true;
    m_paused = false;
    m_cancelled = false;
    // A stop that came in between would be forgotten otherwise.
    if (m_stopped)
        m_cancelled = true;
    clearCounts();
    qCDebug(logAppMigration) << "AppMigrator: Starting migration for" << apps.size() << "apps";

    analyzeAll();
    if (!m_cancelled)
        sendAll();
    m_running = false;
    if (!m_cancelled)
        Q_EMIT finished(m_successCount, m_failedCount, m_skippedCount);
}

void AppMigrator::analyzeAll()
{
    for (qsizetype i = 0; i < m_apps.size() && !m_cancelled; ++i) {
        const AppInfo &app = m_apps[i];
        if (!app.selected || !app.canTransfer) {
            ++m_skippedCount;
            continue;
        }
        Q_EMIT analyzeProgress(int(i), int(m_apps.size()), app.name);
        m_packages.append(analyzeApp(app, [this] { return m_cancelled.load(); }));
    }
    logSharedNames(m_packages);
}

void AppMigrator::sendAll()
{
    const int count = int(m_packages.size());
    for (int i = 0; i < count; ++i) {
        waitWhilePaused();
        if (m_cancelled)
            return;
        AppPackage &package = m_packages[i];
        Q_EMIT appStarted(package.name);
        Q_EMIT progress(i * 100 / count, package.name);
        const bool sent = sendApp(package);
        ++(sent ? m_successCount : m_failedCount);
        package.status = sent ? AppPackage::Sent : AppPackage::SendFailed;
        Q_EMIT appFinished(package.name, sent, sent ? QString() : package.errorMessage);
    }
}

void AppMigrator::waitWhilePaused() const
{
    while (m_paused && !m_cancelled)
        QThread::msleep(PausePoll);
}

bool AppMigrator::sendApp(const AppPackage &package)
{
    const QString safe = makeSafeName(package.name);
    const QString base = u"Apps/"_s + safe;
    qCDebug(logAppMigration) << "Sending app:" << package.name << "-> safeName:" << safe;
    m_filesQueued = 0;
    m_filesSkipped = 0;
    m_skippedPaths.clear();

    Q_EMIT appProgress(package.name, 0, tr("Sending app info..."));
    Q_EMIT requestSendCommand(int(Protocol::MessageType::AppStart), appStartPayload(package));
    sendRegistry(package, base);
    if (!sendFolders(package, base))
        return false;
    Q_EMIT appProgress(package.name, 95, tr("Sending shortcuts..."));
    sendShortcuts(package, base);
    logQueued(package.name);
    Q_EMIT appProgress(package.name, 100, tr("Completing..."));
    Q_EMIT requestSendCommand(int(Protocol::MessageType::AppEnd),
                              appEndPayload(package.name, m_filesQueued, m_filesSkipped));
    return true;
}

void AppMigrator::sendRegistry(const AppPackage &package, const QString &base)
{
    if (package.registryKeys.isEmpty())
        return;
    Q_EMIT appProgress(package.name, 5, tr("Exporting registry..."));
    const QString file = QDir::temp().filePath(u"zandrove_%1.reg"_s.arg(makeSafeName(package.name)));
    if (exportRegistryKeys(package.registryKeys, file)) {
        queueFile(file, base + u"/registry.reg"_s);
        return;
    }
    qCDebug(logAppMigration) << "  [WARN] Failed to export registry for:" << package.name;
    ++m_filesSkipped;
}

/// False when cancelled before a folder; a folder that can't be sent is passed over.
bool AppMigrator::sendFolders(const AppPackage &package, const QString &base)
{
    struct Area
    {
        const QStringList &folders;
        QString place;
        QString status;
    };
    const Area areas[] = {
        {package.installDirs, u"/Install/"_s, tr("Sending install files...")},
        {package.appDataLocal, u"/AppData/Local/"_s, tr("Sending AppData Local...")},
        {package.appDataRoaming, u"/AppData/Roaming/"_s, tr("Sending AppData Roaming...")},
        {package.programData, u"/ProgramData/"_s, tr("Sending ProgramData...")},
    };
    int total = 0;
    for (const Area &area : areas)
        total += int(area.folders.size());
    int done = 0;
    for (const Area &area : areas) {
        for (const QString &folder : area.folders) {
            if (m_cancelled)
                return false;
            Q_EMIT appProgress(package.name, done * 80 / std::max(total, 1) + 10, area.status);
            std::ignore = sendDirectory(folder, base + area.place + makeSafeName(QDir(folder).dirName()));
            ++done;
        }
    }
    return true;
}

bool AppMigrator::sendDirectory(const QString &folder, const QString &relativeBase)
{
    const QDir directory(folder);
    if (!directory.exists()) {
        qCDebug(logAppMigration) << "  [WARN] Directory not exists:" << folder;
        return false;
    }
    QDirIterator files(folder, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (files.hasNext() && !m_cancelled) {
        const QString path = files.next();
        if (isExcludedFile(path)) {
            qCDebug(logAppMigration) << "  [SKIP-FILTER]" << path;
            ++m_filesSkipped;
        } else if (!files.fileInfo().isReadable()) {
            qCDebug(logAppMigration) << "  [SKIP-UNREADABLE]" << path;
            ++m_filesSkipped;
            m_skippedPaths.append(path);
        } else {
            queueFile(path,
                      relativeBase + u'/' + directory.relativeFilePath(files.fileInfo().absoluteFilePath()));
        }
    }
    return !m_cancelled;
}

void AppMigrator::sendShortcuts(const AppPackage &package, const QString &base)
{
    for (const ShortcutInfo &shortcut : package.shortcuts) {
        const QString &path = shortcut.shortcutPath;
        const std::optional<qint64> size = Platform::realFileSize(path);
        if (!size) {
            qCDebug(logAppMigration) << "  [SKIP] Shortcut not found:" << path;
            ++m_filesSkipped;
        } else if (*size > LargestShortcut) {
            qCDebug(logAppMigration) << "  [SKIP] Oversized shortcut:" << path << "size:" << *size;
            ++m_filesSkipped;
        } else {
            const bool onDesktop = path.contains("Desktop"_L1, Qt::CaseInsensitive);
            const QString name = makeSafeName(QFileInfo(path).completeBaseName()) + u".lnk"_s;
            queueFile(path,
                      base + (onDesktop ? u"/Shortcuts/Desktop/"_s : u"/Shortcuts/StartMenu/"_s) + name);
        }
    }
}

void AppMigrator::queueFile(const QString &filePath, const QString &relativePath)
{
    Q_EMIT requestSendFile(filePath, relativePath);
    ++m_filesQueued;
}

void AppMigrator::logQueued(const QString &name) const
{
    qCDebug(logAppMigration) << "App" << name << "send stats:"
                             << "queued:" << m_filesQueued << "skipped:" << m_filesSkipped;
    if (m_skippedPaths.isEmpty())
        return;
    qCDebug(logAppMigration) << "  Skipped paths:";
    for (const QString &path : m_skippedPaths)
        qCDebug(logAppMigration) << "    -" << path;
}

void AppMigrator::startReceiving()
{
    if (m_running || m_stopped)
        return;
    m_paused = false;
    m_cancelled = false;
    clearCounts();
    m_receivePath = QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/Zandrove_Apps"_s;
    QDir().mkpath(m_receivePath);
    qCDebug(logAppMigration) << "AppMigrator: Ready to receive apps at" << m_receivePath;
    m_running = true; // last: the messages come on another thread
    if (m_stopped)
        cancel();
}

void AppMigrator::onAppPackageReceived(const QByteArray &data)
{
    if (!m_running)
        return;
    const std::optional<AppPackage> package = readAppStart(data);
    m_currentApp = package.value_or(AppPackage{});
    if (!package)
        return;
    qCDebug(logAppMigration) << "Receiving app:" << m_currentApp.name;
    Q_EMIT appStarted(m_currentApp.name);
}

void AppMigrator::onAppEndReceived(const QString &appName)
{
    if (!m_running || appName.isEmpty() || appName != m_currentApp.name)
        return;
    qCDebug(logAppMigration) << "App transfer complete, installing:" << appName;
    const bool installed = installApp(m_currentApp);
    ++(installed ? m_successCount : m_failedCount);
    Q_EMIT appFinished(m_currentApp.name, installed, installed ? QString() : m_currentApp.errorMessage);
}

bool AppMigrator::installApp(AppPackage &package)
{
    AppPackageInfo info = receivedPackage(package, m_receivePath + u"/Apps/"_s + package.name);
    AppInstaller installer;
    connect(&installer, &AppInstaller::progress, this, &AppMigrator::appProgress);
    const bool installed = installer.install(info);
    package.errorMessage = info.errorMessage;
    return installed;
}

void AppMigrator::cancel()
{
    m_cancelled = true;
    m_running = false;
}

void AppMigrator::stop()
{
    m_stopped = true;
    cancel();
}

void AppMigrator::clearCounts()
{
    m_successCount = 0;
    m_failedCount = 0;
    m_skippedCount = 0;
}

} // namespace Zandrove
