#pragma once

#include "appmigration/AppPackage.h"

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QString>

namespace Zandrove {

class InstallWorker;
class WorkerThread;

/// The New PC's applications in transit: which are announced, which of their files are on the way, and their
/// installation once they are whole. Their files lie below receivedAppsFolder(), a folder for each, and
/// nothing outside is ever removed, whatever an application is called.
///
/// Main thread only; the installing itself happens on the thread that it is given, one application after the
/// other. One that can't be installed costs itself alone.
class ReceivedApps final : public QObject
{
    Q_OBJECT

public:
    /// Installs on `thread`, which must outlive this object.
    ReceivedApps(WorkerThread &thread, QObject *parent);

    /// An application is announced by this message: its folder is made, empty, and it waits to be installed.
    /// One of the same name is replaced. Returns its name; nothing, and nothing done, for a message that
    /// can't be read, a name that would lead out of the folder, or a folder that isn't this user's own.
    [[nodiscard]] QString begin(const QByteArray &payload);

    /// A file begins. Counted when it belongs to an application, as do all below "Apps/NAME/".
    void countFileIn(const QString &relativePath);
    /// A file has ended. Returns the application that has been waiting for it as its last one; else nothing.
    [[nodiscard]] QString countFileOut(const QString &relativePath);

    /// The file has not arrived whole, which fails the application that it belongs to.
    void noteMissing(const QString &relativePath);

    /// All of `appName` is announced. Returns how many of its files are still on the way.
    int end(const QString &appName);
    /// Whether `appName` has ended and none of its files is on the way.
    [[nodiscard]] bool isComplete(const QString &appName) const;

    /// Has `appName` installed from what has arrived, and that removed. `installed` tells the outcome;
    /// nothing happens where no such application waits.
    void tryInstallApp(const QString &appName);
    /// The same for all that still wait, complete or not.
    void forceInstallAll();

    /// Removes all that has arrived, behind what is being installed, and
    /// forgets what waits. `cleanedUp` follows.
    void cleanUp();

Q_SIGNALS:
    void installProgress(const QString &appName, int percent, const QString &status);
    /// The installation has come to its end, before what has arrived is removed.
    void installFinished(const QString &appName, bool success, const QString &error);
    /// The outcome, when what had arrived is removed.
    void installed(const QString &appName, bool success, const QString &error);
    void cleanedUp();

private:
    InstallWorker *m_worker;                          // owned by the thread
    QMap<QString, AppPackageInfo> m_receivedPackages; // by name, not yet installed
    QMap<QString, int> m_appOpenFiles;                // by the name in the path
    QMap<QString, bool> m_appEndReceived;             // by name
    QMap<QString, int> m_missing;                     // files, by the name in the path
};

} // namespace Zandrove
