#include "inventory/FolderView.h"

#include "inventory/Log.h"
#include "platform/Drives.h"
#include "support/Paths.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Zandrove {

const FolderView &diskFolders()
{
    static const FolderView Disk = {
        .exists = [](const QString &path) { return QFileInfo::exists(withSlashes(path)); },
        .isFolder = [](const QString &path) { return QFileInfo(withSlashes(path)).isDir(); },
        .subfolders =
            [](const QString &folder) {
                return QDir(withSlashes(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
            },
        .files =
            [](const QString &folder, const QString &pattern) {
                return QDir(withSlashes(folder))
                    .entryList({pattern}, QDir::Files, QDir::Name | QDir::IgnoreCase);
            }};
    return Disk;
}

QStringList otherFixedDrives()
{
    QStringList drives = Platform::fixedDrives();
    qCDebug(logInventory) << "[AppScanner] Available fixed drives:" << drives;
    drives.removeAll(qEnvironmentVariable("SystemDrive", u"C:"_s).toUpper());
    return drives;
}

QStringList programFoldersOnOtherDrives()
{
    QStringList folders;
    const QStringList drives = otherFixedDrives();
    for (const QString &drive : drives) {
        for (const QString &name : {u"Program Files"_s, u"Program Files (x86)"_s, u"Programs"_s, u"Apps"_s,
                                    u"Software"_s, u"Games"_s, u"Applications"_s}) {
            const QString folder = drive + u'/' + name;
            if (diskFolders().isFolder(folder))
                folders.append(folder);
        }
    }
    return folders;
}

QStringList programFilesFolders()
{
    return {qEnvironmentVariable("ProgramFiles"), qEnvironmentVariable("ProgramFiles(x86)")};
}

} // namespace Zandrove
