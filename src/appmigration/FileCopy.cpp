#include "appmigration/FileCopy.h"

#include "appmigration/Log.h"
#include "support/Paths.h"
#include "support/ReplacingFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::FileCopy)
};

constexpr qint64 PieceBytes = 1024 * 1024;

/// All at once, because the copies may come to lie where the walk still has to go.
QStringList filesBelow(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

enum class Outcome { Copied, Failed, Stopped };

/// The content, in pieces that are small enough for a stop to be noticed. Stops where `goOn` says so.
Outcome copyContent(QFile &from, ReplacingFile &to, const std::function<bool()> &goOn)
{
    const qint64 size = from.size();
    qint64 copied = 0;
    while (copied < size) {
        if (!goOn())
            return Outcome::Stopped;
        const QByteArray bytes = from.read(std::min(PieceBytes, size - copied));
        if (bytes.isEmpty() || !to.write(bytes))
            return Outcome::Failed;
        copied += bytes.size();
    }
    return to.commit() ? Outcome::Copied : Outcome::Failed;
}

Outcome copyFile(const QString &source, const QString &destination, const std::function<bool()> &goOn,
                 CopyFailure &failure)
{
    QFile from(source);
    ReplacingFile to(destination);
    Outcome outcome = Outcome::Failed;
    if (from.open(QIODevice::ReadOnly) && to.open())
        outcome = copyContent(from, to, goOn);
    if (outcome == Outcome::Failed) {
        const QString readError =
            from.error() == QFile::NoError ? Text::tr("it became shorter meanwhile") : from.errorString();
        failure = {destination, to.reason().isEmpty() ? readError : to.reason(), to.fullVolume()};
    }
    return outcome;
}

/// What a file that failed adds, and its line of the log.
CopyResult failedFile(const QString &source, const CopyFailure &failure)
{
    qCDebug(logAppMigration) << "    Failed to copy:" << source << "->" << failure.path;
    qCDebug(logAppMigration) << "      Reason:" << failure.reason;
    CopyResult result;
    result.failed = 1;
    result.failures = {failure};
    if (!failure.fullVolume.isEmpty()) {
        result.fullVolume = failure.fullVolume;
        result.failedForRoom = 1;
        result.bytesWithoutRoom = QFileInfo(source).size();
    }
    return result;
}

QString absoluteComparable(const QString &path)
{
    return comparablePath(QFileInfo(withSlashes(path)).absoluteFilePath());
}

} // namespace

void CopyResult::add(const CopyResult &other)
{
    copied += other.copied;
    failed += other.failed;
    if (!other.fullVolume.isEmpty())
        fullVolume = other.fullVolume;
    failedForRoom += other.failedForRoom;
    bytesWithoutRoom += other.bytesWithoutRoom;
    failures += other.failures.first(std::min(MaxListed - failures.size(), other.failures.size()));
}

CopyResult copyDirectory(const QString &source, const QString &target, const CopyControl &goOn)
{
    CopyResult result;
    const QDir sourceFolder(source);
    if (!sourceFolder.exists() || isWithin(target, source))
        return result;
    if (!QDir().mkpath(target)) // which each file says with its reason
        qCDebug(logAppMigration) << "  Failed to create directory:" << target;
    const auto mayGoOn = [&] { return !goOn || goOn(result.copied + result.failed); };
    const QStringList files = filesBelow(source);
    QSet<QString> tidyFolders;
    for (const QString &file : files) {
        if (!mayGoOn())
            break;
        const QString destination = target + u'/' + sourceFolder.relativeFilePath(file);
        const QString folder = QFileInfo(destination).path();
        if (!tidyFolders.contains(folder)) {
            tidyFolders.insert(folder);
            removeAbandonedFiles(folder);
        }
        CopyFailure failure;
        const Outcome outcome = copyFile(file, destination, mayGoOn, failure);
        if (outcome == Outcome::Stopped)
            break;
        if (outcome == Outcome::Copied)
            ++result.copied;
        else
            result.add(failedFile(file, failure));
    }
    qCDebug(logAppMigration) << "  copyDirectory result: success=" << result.copied
                             << "failed=" << result.failed;
    return result;
}

int countFiles(const QString &source)
{
    return int(filesBelow(source).size());
}

bool isWithin(const QString &path, const QString &folder)
{
    const QString outer = absoluteComparable(folder);
    const QString inner = absoluteComparable(path);
    return inner == outer || inner.startsWith(outer.endsWith(u'/') ? outer : outer + u'/');
}

} // namespace Zandrove
