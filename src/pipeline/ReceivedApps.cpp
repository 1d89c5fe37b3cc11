#include "pipeline/ReceivedApps.h"

#include "appmigration/AppMessages.h"
#include "pipeline/DestinationGuard.h"
#include "pipeline/DestinationMap.h"
#include "pipeline/InstallWorker.h"
#include "pipeline/Log.h"
#include "pipeline/WorkerThread.h"

#include <QDir>

namespace Zandrove {

namespace {

QString receivedAppFolder(const QString &appName)
{
    return receivedAppsFolder() + u'/' + appName;
}

} // namespace

ReceivedApps::ReceivedApps(WorkerThread &thread, QObject *parent)
    : QObject(parent)
    , m_worker(new InstallWorker)
{
    connect(m_worker, &InstallWorker::progress, this, &ReceivedApps::installProgress);
    connect(m_worker, &InstallWorker::finished, this, &ReceivedApps::installFinished);
    connect(m_worker, &InstallWorker::installed, this, &ReceivedApps::installed);
    connect(m_worker, &InstallWorker::cleanedUp, this, &ReceivedApps::cleanedUp);
    thread.carry(m_worker);
}

QString ReceivedApps::begin(const QByteArray &payload)
{
    const std::optional<AppPackage> package = readAppStart(payload);
    if (!package) {
        qCDebug(logPipeline) << "Ignoring an application that can't be read or has a name of no use";
        return {};
    }
    const QString basePath = receivedAppFolder(package->name);
    if (QDir(basePath).exists()) {
        qCDebug(logPipeline) << "Cleaning previous app data:" << basePath;
        if (!removeReceived(basePath)) {
            qCDebug(logPipeline) << "Ignoring an application whose folder can't be cleaned:" << basePath;
            return {};
        }
    }
    QDir().mkpath(basePath);
    const AppPackageInfo &info =
        *m_receivedPackages.insert(package->name, receivedPackage(*package, basePath));
    qCDebug(logPipeline) << "Received AppStart for:" << info.name;
    qCDebug(logPipeline) << "  Original install location:" << info.originalInstallLocation;
    qCDebug(logPipeline) << "  Source user:" << info.sourceUser;
    qCDebug(logPipeline) << "  Saved to receivedBasePath:" << info.receivedBasePath;
    m_missing.remove(makeSafeName(package->name));
    return package->name;
}

void ReceivedApps::countFileIn(const QString &relativePath)
{
    const QString name = appOfPath(relativePath);
    if (name.isEmpty())
        return;
    const int count = ++m_appOpenFiles[name];
    qCDebug(logPipeline) << "App file opened:" << name << "count:" << count;
}

QString ReceivedApps::countFileOut(const QString &relativePath)
{
    const QString name = appOfPath(relativePath);
    if (name.isEmpty())
        return {};
    const int count = --m_appOpenFiles[name];
    qCDebug(logPipeline) << "App file closed:" << name << "count:" << count;
    return isComplete(name) ? name : QString();
}

void ReceivedApps::noteMissing(const QString &relativePath)
{
    if (const QString name = appOfPath(relativePath); !name.isEmpty())
        ++m_missing[name];
}

int ReceivedApps::end(const QString &appName)
{
    m_appEndReceived[appName] = true;
    return m_appOpenFiles.value(appName);
}

bool ReceivedApps::isComplete(const QString &appName) const
{
    return m_appEndReceived.value(appName) && m_appOpenFiles.value(appName) <= 0;
}

void ReceivedApps::tryInstallApp(const QString &appName)
{
    qCDebug(logPipeline) << "tryInstallApp:" << appName;
    const auto waiting = m_receivedPackages.constFind(appName);
    if (waiting == m_receivedPackages.cend()) {
        qCDebug(logPipeline) << "  WARNING: No package info found for:" << appName;
        return;
    }
    AppPackageInfo package = *waiting;
    package.receivedBasePath = receivedAppFolder(appName);
    package.filesMissing = m_missing.take(makeSafeName(appName));
    qCDebug(logPipeline) << "Installing app:" << appName;
    qCDebug(logPipeline) << "  receivedBasePath:" << package.receivedBasePath;
    qCDebug(logPipeline) << "  originalInstallLocation:" << package.originalInstallLocation;
    qCDebug(logPipeline) << "  sourceUser:" << package.sourceUser;

    QMetaObject::invokeMethod(
        m_worker, [worker = m_worker, package] { worker->install(package); }, Qt::QueuedConnection);
    m_receivedPackages.remove(appName);
    m_appOpenFiles.remove(appName);
    m_appEndReceived.remove(appName);
}

void ReceivedApps::forceInstallAll()
{
    const QStringList names = m_receivedPackages.keys();
    qCDebug(logPipeline) << "Apps pending installation:" << names.size();
    for (const QString &name : names) {
        qCDebug(logPipeline) << "Force installing app:" << name;
        m_appEndReceived[name] = true;
        m_appOpenFiles[name] = 0;
        tryInstallApp(name);
    }
}

void ReceivedApps::cleanUp()
{
    m_receivedPackages.clear();
    QMetaObject::invokeMethod(m_worker, &InstallWorker::cleanUp, Qt::QueuedConnection);
}

} // namespace Zandrove
