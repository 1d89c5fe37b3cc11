#include "pipeline/InstallWorker.h"

#include "pipeline/DestinationGuard.h"
#include "pipeline/DestinationMap.h"
#include "pipeline/Log.h"

#include <QDir>

namespace Zandrove {

InstallWorker::InstallWorker()
    : m_installer(this)
{
    connect(&m_installer, &AppInstaller::progress, this,
            [this](const QString &name, int percent, const QString &status) {
                qCDebug(logPipeline) << "Installing" << name << percent << status;
                Q_EMIT progress(name, percent, status);
            });
    connect(&m_installer, &AppInstaller::finished, this,
            [this](const QString &name, bool success, const QString &error) {
                qCDebug(logPipeline) << "App install finished:" << name << (success ? "SUCCESS" : "FAILED");
                if (!error.isEmpty())
                    qCDebug(logPipeline) << "  Error:" << error;
                Q_EMIT finished(name, success, error);
            });
}

void InstallWorker::install(AppPackageInfo package)
{
    const bool success = m_installer.install(package);
    qCDebug(logPipeline) << (success ? "App installed successfully:" : "App install failed:") << package.name;
    if (!removeReceived(package.receivedBasePath))
        qCDebug(logPipeline) << "Something is left in temp directory:" << package.receivedBasePath;
    qCDebug(logPipeline) << "Cleaned up temp directory:" << package.receivedBasePath;
    Q_EMIT installed(package.name, success, success ? QString() : package.errorMessage);
}

void InstallWorker::cleanUp()
{
    const QDir folder(receivedAppsFolder());
    if (folder.exists()) {
        const QStringList remaining = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        if (!remaining.isEmpty())
            qCDebug(logPipeline) << "Found" << remaining.size()
                                 << "remaining app directories (not installed)";
        for (const QString &name : remaining)
            qCDebug(logPipeline) << "  Remaining:" << name;
        if (removeReceived(folder.path()))
            qCDebug(logPipeline) << "Cleaned up received apps temp directory";
    }
    Q_EMIT cleanedUp();
}

} // namespace Zandrove
