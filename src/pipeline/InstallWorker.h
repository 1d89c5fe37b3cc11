#pragma once

#include "appmigration/AppInstaller.h"

namespace Zandrove {

/// Installs received applications and removes what had arrived of them. Its slots block the thread that it
/// lives in; an installation ends early when that thread is asked to end.
class InstallWorker final : public QObject
{
    Q_OBJECT

public:
    InstallWorker();

public Q_SLOTS:
    /// Installs `package` from its folder below receivedAppsFolder(), and removes that. Ends by `installed`.
    void install(Zandrove::AppPackageInfo package);
    /// Removes all that has arrived and was not installed. Ends by `cleanedUp`.
    void cleanUp();

Q_SIGNALS:
    void progress(const QString &appName, int percent, const QString &status);
    /// The installation has come to its end, before what has arrived is removed.
    void finished(const QString &appName, bool success, const QString &error);
    /// The outcome.
    void installed(const QString &appName, bool success, const QString &error);
    void cleanedUp();

private:
    AppInstaller m_installer;
};

} // namespace Zandrove
