#include "pipeline/DestinationMap.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr auto AppsPrefix = "Apps/"_L1;

QString downloadFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation) + u"/Zandrove"_s;
}

const QMap<QString, QString> &destinationFolders()
{
    static const QMap<QString, QString> Folders{
        {u"desktop"_s, QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)},
        {u"documents"_s, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)},
        {u"downloads"_s, QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)},
        {u"pictures"_s, QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)},
        {u"music"_s, QStandardPaths::writableLocation(QStandardPaths::MusicLocation)},
        {u"videos"_s, QStandardPaths::writableLocation(QStandardPaths::MoviesLocation)},
    };
    return Folders;
}

const QMap<QString, QString> &categories()
{
    static const QMap<QString, QString> Names{
        {u"desktop"_s, u"Desktop"_s}, {u"documents"_s, u"Documents"_s}, {u"pictures"_s, u"Pictures"_s},
        {u"music"_s, u"Music"_s},     {u"videos"_s, u"Videos"_s},       {u"downloads"_s, u"Downloads"_s},
    };
    return Names;
}

QString withSlashes(QString path)
{
    return path.replace(u'\\', u'/');
}

/// The folder at or above `path` whose own name is a category, else the topmost one.
QString categoryFolder(const QString &path)
{
    QString folder = QFileInfo(path).absolutePath();
    while (!folder.isEmpty()) {
        if (categories().contains(QFileInfo(folder).fileName().toLower()))
            break;
        const QString parent = QFileInfo(folder).path();
        if (parent == folder)
            break;
        folder = parent;
    }
    return folder;
}

} // namespace

QString receivedAppsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/Zandrove/ReceivedApps"_s;
}

bool isAppPath(const QString &relativePath)
{
    return relativePath.startsWith(AppsPrefix, Qt::CaseInsensitive);
}

QString appOfPath(const QString &relativePath)
{
    const qsizetype start = relativePath.indexOf(u'/') + 1;
    const qsizetype end = relativePath.indexOf(u'/', start);
    return isAppPath(relativePath) && end > start ? relativePath.sliced(start, end - start) : QString();
}

QString destinationFor(const QString &relativePath, const QString &destinationRoot)
{
    const QString path = withSlashes(relativePath);
    if (isAppPath(path))
        return receivedAppsFolder() + u'/' + path.mid(AppsPrefix.size());

    const qsizetype slash = path.indexOf(u'/', 1);
    if (slash > 0) {
        const auto folder = destinationFolders().constFind(path.left(slash).toLower());
        if (folder != destinationFolders().cend())
            return *folder + u'/' + path.mid(slash + 1);
    }
    const QString root = destinationRoot.isEmpty() ? downloadFolder() : destinationRoot;
    return root + u'/' + path;
}

void ReceivedFolders::record(const QString &relativePath, const QString &destinationPath,
                             const QString &otherCategory)
{
    const QString path = withSlashes(relativePath);
    const qsizetype slash = path.indexOf(u'/', 1);
    const QString first = slash > 0 ? path.left(slash) : path;

    QString category = categories().value(first.toLower());
    QString shownFolder;
    QString topFolder;
    if (!category.isEmpty()) {
        if (!destinationPath.isEmpty())
            shownFolder = categoryFolder(destinationPath);
    } else if (path.startsWith(AppsPrefix)) {
        return;
    } else {
        category = otherCategory;
        shownFolder = downloadFolder();
        topFolder = first;
    }

    ++counts[category];
    if (!shownFolder.isEmpty() && !paths.contains(category))
        paths.insert(category, shownFolder);
    if (!topFolder.isEmpty() && !folders[category].contains(topFolder))
        folders[category].append(topFolder);
}

QMap<QString, QString> ReceivedFolders::samples() const
{
    constexpr int SampledFolders = 3;
    QMap<QString, QString> texts;
    for (auto entry = folders.cbegin(); entry != folders.cend(); ++entry) {
        const QStringList &names = entry.value();
        if (names.isEmpty())
            continue;
        const QString shown =
            QStringList(names.first(std::min<qsizetype>(names.size(), SampledFolders))).join(u", ");
        texts.insert(entry.key(), u'(' + shown + (names.size() > SampledFolders ? u", ...)"_s : u")"_s));
    }
    return texts;
}

} // namespace Zandrove
