#include "inventory/FileScanner.h"

#include "inventory/Log.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

namespace Zandrove {

FileScanner::FileScanner(QObject *parent)
    : QObject(parent)
{
    for (const auto location :
         {QStandardPaths::DocumentsLocation, QStandardPaths::PicturesLocation, QStandardPaths::MusicLocation,
          QStandardPaths::MoviesLocation, QStandardPaths::DownloadLocation, QStandardPaths::DesktopLocation})
        m_folderPaths.append(QStandardPaths::writableLocation(location));
}

void FileScanner::start()
{
    const quint64 run = m_runs.begin();
    if (run == 0)
        return;
    Q_EMIT started();
    Q_EMIT progress(0, tr("Starting folder scan..."));

    QList<FolderInfo> folders;
    int counter = 0;
    for (const QString &path : std::as_const(m_folderPaths)) {
        if (!m_runs.isCurrent(run)) {
            qCDebug(logInventory) << "Folder scan cancelled";
            break;
        }
        const QFileInfo info(path);
        if (info.isDir())
            folders.append(scanFolder(path, run));
        counter += 100;
        Q_EMIT progress(counter / int(m_folderPaths.size()), info.fileName());
    }
    if (m_runs.end(run))
        Q_EMIT finished(folders);
    qCDebug(logInventory) << "Found" << folders.size() << "folders to transfer";
}

void FileScanner::cancel()
{
    m_runs.cancel();
    Q_EMIT cancelled();
}

FolderInfo FileScanner::scanFolder(const QString &path, quint64 run) const
{
    FolderInfo folder;
    folder.name = QFileInfo(path).fileName();
    folder.path = path;
    QDirIterator files(path, QDir::Files, QDirIterator::Subdirectories);
    while (m_runs.isCurrent(run) && files.hasNext()) {
        files.next();
        folder.totalSize += files.fileInfo().size();
        ++folder.fileCount;
    }
    return folder;
}

} // namespace Zandrove
