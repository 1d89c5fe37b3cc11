#include "appmigration/FileCopy.h"

#include "appmigration/Log.h"
#include "support/Paths.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// All at once, because the copies may come to lie where the walk still has to go.
QStringList filesBelow(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

/// A name in `folder` that nothing has.
QString unusedPath(const QString &folder)
{
    QString path;
    do {
        path = folder + u"/~zd%1"_s.arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
    } while (QFileInfo::exists(path));
    return path;
}

/// Puts `copy` in the place of the file `old`, which stays or comes back where that fails: one that another
/// program holds open may be movable but not removable, or leave its name only later.
bool takePlace(const QString &copy, const QString &old)
{
    if (QFileInfo(old).isSymLink()) // nothing is lost with it
        return QFile::remove(old) && QFile::rename(copy, old);
    const QString aside = unusedPath(QFileInfo(old).path());
    if (!QFile::rename(old, aside))
        return false;
    if (QFile::rename(copy, old)) {
        if (QFile::remove(aside))
            return true;
        QFile::remove(old);
    }
    QFile::rename(aside, old);
    return false;
}

/// Copies beside an old file first: a full disk or a locked source then leaves it as it is.
bool replaceFile(const QString &source, const QString &destination)
{
    const QFileInfo old(destination);
    if (old.isDir() || !QDir().mkpath(old.path()))
        return false;
    if (!old.exists() && !old.isSymLink())
        return QFile::copy(source, destination);
    if (old.exists() && !old.isWritable()) // can be moved, but not removed, on Windows
        return false;
    const QString copy = unusedPath(old.path());
    const bool replaced = QFile::copy(source, copy) && takePlace(copy, destination);
    if (!replaced)
        QFile::remove(copy);
    return replaced;
}

QString absoluteComparable(const QString &path)
{
    return comparablePath(QFileInfo(withSlashes(path)).absoluteFilePath());
}

} // namespace

bool copyDirectory(const QString &source, const QString &target)
{
    const QDir sourceFolder(source);
    if (!sourceFolder.exists() || isWithin(target, source))
        return false;
    if (!QDir().mkpath(target)) {
        qCDebug(logAppMigration) << "  Failed to create directory:" << target;
        return false;
    }
    int copied = 0;
    int failed = 0;
    const QStringList files = filesBelow(source);
    for (const QString &file : files) {
        const QString destination = target + u'/' + sourceFolder.relativeFilePath(file);
        if (replaceFile(file, destination)) {
            ++copied;
        } else {
            ++failed;
            qCDebug(logAppMigration) << "    Failed to copy:" << file << "->" << destination;
        }
    }
    qCDebug(logAppMigration) << "  copyDirectory result: success=" << copied << "failed=" << failed;
    return copied > 0;
}

bool isWithin(const QString &path, const QString &folder)
{
    const QString outer = absoluteComparable(folder);
    const QString inner = absoluteComparable(path);
    return inner == outer || inner.startsWith(outer.endsWith(u'/') ? outer : outer + u'/');
}

} // namespace Zandrove
