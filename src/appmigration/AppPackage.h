#pragma once

#include "appmigration/FileCopy.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What an application is made of on its way from one PC to the other. Plain records; sizes are bytes.
namespace Zandrove {

/// One shortcut to an application, as it stands on the Old PC.
struct ShortcutInfo
{
    QString shortcutPath; ///< the .lnk file itself
    QString targetPath;
    QString arguments;
    QString workingDir;
    QString iconPath;
    int iconIndex = 0;
    QString description;
};

/// What belongs to one application on the Old PC.
struct AppPackage
{
    enum Status : int { Analyzed = 0, Sent = 2, SendFailed = 3 };

    QString name;
    QString version;
    QString publisher; ///< spare on the Old PC, where nothing tells it
    QString installLocation;
    QString reservedText;
    QStringList installDirs; ///< absolute folders, as are the next three lists
    QStringList appDataLocal;
    QStringList appDataRoaming;
    QStringList programData;
    QStringList registryKeys; ///< full paths, as "HKEY_CURRENT_USER\Software\Acme"
    QString reservedKey;
    QList<ShortcutInfo> shortcuts;
    qint64 totalSize = 0; ///< of the files that do not stay behind
    int fileCount = 0;    ///< the same files
    QString sourceUser;   ///< name of the user on the Old PC
    int status = Analyzed;
    QString errorMessage;
};

/// What the New PC knows of an application that it has received.
struct AppPackageInfo
{
    enum Status : int { Received = 0, Installing = 1, Installed = 3, Failed = 4 };

    QString name;
    QString version;
    QString publisher;
    QString receivedBasePath;        ///< folder that holds everything received of it
    QString originalInstallLocation; ///< where it was installed on the Old PC
    QString targetInstallLocation;   ///< where it goes on this PC; set by the installer
    QString sourceUser;              ///< name of the user on the Old PC
    qint64 totalSize = 0;
    int fileCount = 0;
    int filesMissing = 0; ///< files of it that are known not to have arrived; one is enough to fail it
    QString errorMessage; ///< set when an installation fails
    int status = Received;

    // What the installer did:
    int filesToCopy = 0;      ///< that were there
    CopyResult files;         ///< what came of them
    QString importedKeysCopy; ///< the file that keeps what was to be imported; empty where there is none
};

/// `package`, whose message has arrived, as it is installed from `receivedBasePath`.
[[nodiscard]] AppPackageInfo receivedPackage(const AppPackage &package, const QString &receivedBasePath);

/// `name` as one component of a path that every system accepts, the same on both PCs: without the characters
/// that Windows forbids, not one of its devices, and at most 100 characters long.
[[nodiscard]] QString makeSafeName(const QString &name);

/// Whether an application's name that a peer sent may become a part of a path: not empty, no NUL, and no
/// component that is blank or only of dots, which would lead out of the folder. Slashes are fine.
[[nodiscard]] bool isUsableAppName(const QString &name);

} // namespace Zandrove
