#include "pipeline/TaskList.h"

#include "pipeline/DestinationMap.h"
#include "pipeline/Log.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QPair>
#include <QSet>
#include <QStandardPaths>

#include <array>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

using PlacedFile = QPair<QString, QString>; // source path, relative path

void logStandardFolders(const StandardFolders &standard)
{
    qCDebug(logPipeline) << "Standard folders mapping:";
    for (auto entry = standard.cbegin(); entry != standard.cend(); ++entry)
        qCDebug(logPipeline) << "  " << entry.key() << "->" << entry.value().rootWord;
}

} // namespace

StandardFolders standardFolders()
{
    static const std::array<std::pair<QStandardPaths::StandardLocation, QString>, 6> Locations{{
        {QStandardPaths::DesktopLocation, u"Desktop"_s},
        {QStandardPaths::DocumentsLocation, u"Documents"_s},
        {QStandardPaths::DownloadLocation, u"Downloads"_s},
        {QStandardPaths::PicturesLocation, u"Pictures"_s},
        {QStandardPaths::MusicLocation, u"Music"_s},
        {QStandardPaths::MoviesLocation, u"Videos"_s},
    }};
    StandardFolders standard;
    for (const auto &[location, word] : Locations) {
        const QString path = QDir::cleanPath(QStandardPaths::writableLocation(location));
        if (path.isEmpty())
            continue;
        standard.insert(path.toLower(), {word, path.size()});
    }
    return standard;
}

QString taskRoot(const QString &folderPath, const StandardFolders &standard)
{
    const QString cleaned = QDir::cleanPath(folderPath);
    const QString lower = cleaned.toLower();
    for (auto entry = standard.cbegin(); entry != standard.cend(); ++entry) {
        const StandardFolder &folder = entry.value();
        if (lower == entry.key())
            return folder.rootWord;
        if (lower.startsWith(entry.key() + u'/') || lower.startsWith(entry.key() + u'\\'))
            return folder.rootWord + u'/' + cleaned.mid(folder.length + 1);
    }
    const QString name = QDir(QDir::cleanPath(QFileInfo(folderPath).absoluteFilePath())).dirName();
    // The New PC keeps files below "Apps" only until the applications are installed.
    return isAppPath(name + u'/') ? name + u'_' : name;
}

QList<FileTransferTask> taskListFor(const QList<FolderInfo> &folders, int &nextTaskId)
{
    const StandardFolders standard = standardFolders();
    logStandardFolders(standard);

    QList<FileTransferTask> tasks;
    QSet<PlacedFile> placed;
    qsizetype repeats = 0;
    for (const FolderInfo &folder : folders) {
        const QDir directory(folder.path);
        if (!folder.selected || !directory.exists())
            continue;
        const QString root = taskRoot(folder.path, standard);
        QDirIterator files(folder.path, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const QString relativePath = root + u'/' + directory.relativeFilePath(path);
            if (folders.size() > 1) {
                const PlacedFile file(QDir::cleanPath(path), relativePath);
                if (placed.contains(file)) {
                    ++repeats;
                    continue;
                }
                placed.insert(file);
            }
            FileTransferTask task;
            task.taskId = nextTaskId++;
            task.sourcePath = path;
            task.relativePath = relativePath;
            task.fileSize = files.fileInfo().size();
            tasks.append(task);
        }
    }
    if (repeats > 0)
        qCDebug(logPipeline) << "Left out" << repeats
                             << "repeats of files that another folder brings to the same place";
    qCDebug(logPipeline) << "Built task list with" << tasks.size() << "files";
    return tasks;
}

} // namespace Zandrove
