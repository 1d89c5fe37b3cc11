#pragma once

#include "appmigration/AppInstaller.h"
#include "appmigration/AppPackage.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>

namespace Zandrove {

/// The New PC's applications in transit: which are announced, which of their files are on the way, and their
/// installation once they are whole. Their files lie below receivedAppsFolder(), a folder for each, and
/// nothing outside is ever removed, whatever an application is called.
///
/// Main thread only. An application that can't be installed costs itself alone.
class ReceivedApps final : public QObject
{
    Q_OBJECT

public:
    explicit ReceivedApps(QObject *parent = nullptr);

    /// An application is announced by this message: its folder is made, empty, and it waits to be installed.
    /// One of the same name is replaced. False, and nothing done, for a message that can't be read, a name
    /// that would lead out of the folder, or a folder that isn't this user's own.
    [[nodiscard]] bool begin(const QByteArray &payload);

    /// A file begins. Counted when it belongs to an application, as do all below "Apps/NAME/".
    void countFileIn(const QString &relativePath);
    /// A file has ended. Returns the application that has been waiting for it as its last one; else nothing.
    [[nodiscard]] QString countFileOut(const QString &relativePath);

    /// All of `appName` is announced. Returns how many of its files are still on the way.
    int end(const QString &appName);
    /// Whether `appName` has ended and none of its files is on the way.
    [[nodiscard]] bool isComplete(const QString &appName) const;

    /// Installs `appName` from what has arrived, and removes that. Blocks for as long as that takes. Emits
    /// `installed`; does nothing where no such application waits.
    void tryInstallApp(const QString &appName);
    /// The same for all that still wait, complete or not.
    void forceInstallAll();

    /// Removes all that has arrived and forgets what waits.
    void cleanUp();
    /// Forgets files on the way and ends; `forgetPackages()` also what waits to be installed.
    void forgetFiles();
    void forgetPackages() { m_receivedPackages.clear(); }

Q_SIGNALS:
    void installProgress(const QString &appName, int percent, const QString &status);
    /// The installation has come to its end, before what has arrived is removed.
    void installFinished(const QString &appName, bool success, const QString &error);
    /// The outcome, as `tryInstallApp` came to it.
    void installed(const QString &appName, bool success, const QString &error);

private:
    AppInstaller m_appInstaller;
    QMap<QString, AppPackageInfo> m_receivedPackages; // by name, not yet installed
    QMap<QString, int> m_appOpenFiles;                // by the name in the path
    QMap<QString, bool> m_appEndReceived;             // by name
};

} // namespace Zandrove
