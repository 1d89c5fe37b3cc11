#pragma once

#include "appmigration/AppPackage.h"

#include <QObject>
#include <QString>

#include <atomic>

namespace Zandrove {

/// Makes a received package an installed application on this PC, without any installer of its own: copies its
/// files to where they belong, imports its registry and recreates its shortcuts.
///
/// The package lies below AppPackageInfo::receivedBasePath: "Install/NAME", "AppData/Local/NAME",
/// "AppData/Roaming/NAME", "ProgramData/NAME", "registry.reg", "Shortcuts/Desktop" and "Shortcuts/StartMenu",
/// each of which may be missing. It is left as it is; removing it is the caller's business. One installation
/// at a time in the whole program.
///
/// Works on whichever thread calls it, and needs neither that thread's event loop nor a window.
class AppInstaller final : public QObject
{
    Q_OBJECT

public:
    explicit AppInstaller(QObject *parent = nullptr);

    /// Installs `package` and returns whether it is installed: whether each of its files arrived and was
    /// copied. Blocks until then, for the time that copying takes and up to 60 seconds for the registry.
    /// Emits `progress`, and `finished` once. The package then has its status, an error message where it
    /// failed, and what was done.
    ///
    /// A folder of install files of which nothing could be copied ends the installation; after other failures
    /// it goes on, so that as much as possible is there. What was copied stays in any case. What the registry
    /// and the shortcuts did not take is in the log.
    bool install(AppPackageInfo &package);

    /// Any thread. Ends the installation before its next file or step, as failed with an error that says how
    /// far it came; this object begins no other. An interruption request to the installing thread does the
    /// same, and does not wait for the import of the registry either.
    void stop() { m_stopped = true; }

    /// Where the install files of `package` go: for what was below a Program Files folder, the folder of the
    /// same last name in this PC's own; for a user's folder, that of the current user; else the same place.
    [[nodiscard]] QString getTargetInstallPath(const AppPackageInfo &package) const;

Q_SIGNALS:
    /// At each step, and while files are copied some five times a second, by their number.
    void progress(const QString &appName, int percent, const QString &status);
    /// `error` is translated, empty on success.
    void finished(const QString &appName, bool success, const QString &error);

private:
    struct CopyStep;

    [[nodiscard]] bool isStopped() const;
    [[nodiscard]] QString runSteps(AppPackageInfo &package);
    [[nodiscard]] static QString fileGaps(const AppPackageInfo &package);
    [[nodiscard]] bool copyInstallFiles(AppPackageInfo &package);
    [[nodiscard]] bool copyAppData(AppPackageInfo &package);
    [[nodiscard]] bool copyFolder(AppPackageInfo &package, CopyStep &step, const QString &source,
                                  const QString &target);
    void tellProgress(const QString &appName, CopyStep &step, int filesDone);
    [[nodiscard]] bool importRegistry(AppPackageInfo &package) const;
    [[nodiscard]] bool importRegistryFile(const QString &path, const QString &sourceUser) const;
    [[nodiscard]] bool createShortcuts(const AppPackageInfo &package) const;
    [[nodiscard]] bool recreateShortcut(const QString &source, const QString &target,
                                        const AppPackageInfo &package) const;
    [[nodiscard]] QString remapPath(const QString &path, const AppPackageInfo &package) const;

    QString m_currentUser;
    std::atomic<bool> m_stopped = false;
};

} // namespace Zandrove
