#include "pipeline/TaskList.h"

#include "pipeline/DestinationMap.h"
#include "pipeline/Log.h"
#include "platform/FolderEntries.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

void logStandardFolders(const StandardFolders &standard)
{
    qCDebug(logPipeline) << "Standard folders mapping:";
    for (auto entry = standard.cbegin(); entry != standard.cend(); ++entry)
        qCDebug(logPipeline) << "  " << entry.key() << "->" << entry.value().rootWord;
}

/// Walks the folders and keeps what it has found.
class TaskListBuilder
{
    Q_DECLARE_TR_FUNCTIONS(TaskList)

public:
    TaskListBuilder(bool placesMayMeet, int &nextTaskId)
        : m_placesMayMeet(placesMayMeet)
        , m_nextTaskId(nextTaskId)
    {
    }

    void addTop(const QString &folder, const QString &root)
    {
        if (QDir(folder).exists())
            addFolder(folder, root);
        else
            m_list.failures.append({folder, tr("Folder not found")});
    }

    TaskList takeList()
    {
        if (m_repeats > 0)
            qCDebug(logPipeline) << "Left out" << m_repeats
                                 << "repeats of files that another folder brings to the same place";
        qCDebug(logPipeline) << "Built task list with" << m_list.tasks.size() << "files";
        return std::move(m_list);
    }

private:
    void addFolder(const QString &folder, const QString &relativePath)
    {
        const Platform::FolderEntries found = Platform::folderEntries(folder);
        for (const QFileInfo &entry : found.entries) {
            if (entry.isHidden())
                continue;
            const QString place = relativePath + u'/' + entry.fileName();
            if (!entry.isDir() && entry.isFile())
                addFile(entry, place);
            else if (entry.isDir() && !entry.isSymLink())
                addFolder(entry.filePath(), place);
            else if (!entry.exists() && !entry.isSymLink()) // a folder that can be listed, not entered
                m_list.failures.append({entry.filePath(), tr("Cannot be reached")});
        }
        for (const QString &name : found.unreadableNames)
            m_list.failures.append({QDir(folder).filePath(name), tr("Its name is not valid text")});
        if (!found.error.isEmpty())
            m_list.failures.append({folder, tr("Cannot list folder: %1").arg(found.error)});
    }

    void addFile(const QFileInfo &file, const QString &place)
    {
        const QString path = file.filePath();
        if (place.contains(u'\\')) {
            const QString reason = tr("Its path contains a backslash, which separates folders on the New PC");
            m_list.failures.append({path, reason, file.size()});
            return;
        }
        if (m_placesMayMeet) {
            const QString source = QDir::cleanPath(path);
            const QString first = m_placed.value(place);
            if (first == source) {
                ++m_repeats;
                return;
            }
            if (!first.isEmpty()) {
                m_list.failures.append(
                    {path, tr("Another ticked folder has a file of this name"), file.size()});
                return;
            }
            m_placed.insert(place, source);
        }
        FileTransferTask task;
        task.taskId = m_nextTaskId++;
        task.sourcePath = path;
        task.relativePath = place;
        task.fileSize = file.size();
        m_list.tasks.append(task);
    }

    bool m_placesMayMeet;
    int &m_nextTaskId;
    TaskList m_list;
    QHash<QString, QString> m_placed; // relative path to source path
    qsizetype m_repeats = 0;
};

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

TaskList taskListFor(const QList<FolderInfo> &folders, int &nextTaskId)
{
    const StandardFolders standard = standardFolders();
    logStandardFolders(standard);
    TaskListBuilder builder(folders.size() > 1, nextTaskId);
    for (const FolderInfo &folder : folders) {
        if (folder.selected)
            builder.addTop(folder.path, taskRoot(folder.path, standard));
    }
    return builder.takeList();
}

} // namespace Zandrove
