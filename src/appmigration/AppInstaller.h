#pragma once

#include "appmigration/AppPackage.h"

#include <QObject>
#include <QString>

namespace Zandrove {

/// Makes a received package an installed application on this PC, without any installer of its own: copies its
/// files to where they belong, imports its registry and recreates its shortcuts.
///
/// The package lies below AppPackageInfo::receivedBasePath: "Install/NAME", "AppData/Local/NAME",
/// "AppData/Roaming/NAME", "ProgramData/NAME", "registry.reg", "Shortcuts/Desktop" and "Shortcuts/StartMenu",
/// each of which may be missing. It is left as it is; removing it is the caller's business. One installation
/// at a time in the whole program.
class AppInstaller final : public QObject
{
    Q_OBJECT

public:
    explicit AppInstaller(QObject *parent = nullptr);

    /// Installs `package` and returns whether it is installed. Blocks until then, for the time that copying
    /// takes and up to 60 seconds for the registry. Emits `progress`, and `finished` once.
    ///
    /// Only the install files can fail it: the package then has the status Failed and an error message, and
    /// what was copied stays. Other failures are logged and the installation goes on.
    bool install(AppPackageInfo &package);

    /// Where the install files of `package` go: for what was below a Program Files folder, the folder of the
    /// same last name in this PC's own; for a user's folder, that of the current user; else the same place.
    [[nodiscard]] QString getTargetInstallPath(const AppPackageInfo &package) const;

Q_SIGNALS:
    void progress(const QString &appName, int percent, const QString &status);
    void finished(const QString &appName, bool success, const QString &error);

private:
    [[nodiscard]] bool copyInstallFiles(AppPackageInfo &package) const;
    [[nodiscard]] bool copyAppData(const AppPackageInfo &package) const;
    [[nodiscard]] bool importRegistry(const AppPackageInfo &package) const;
    [[nodiscard]] bool importRegistryFile(const QString &path, const QString &sourceUser) const;
    [[nodiscard]] bool createShortcuts(const AppPackageInfo &package) const;
    [[nodiscard]] bool recreateShortcut(const QString &source, const QString &target,
                                        const AppPackageInfo &package) const;
    [[nodiscard]] QString remapPath(const QString &path, const AppPackageInfo &package) const;

    QString m_currentUser;
};

} // namespace Zandrove
