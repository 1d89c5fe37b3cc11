#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace Zandrove {

/// A file that was not copied.
struct CopyFailure
{
    QString path;       ///< where it should stand now
    QString reason;     ///< in the system's words, or translated
    QString fullVolume; ///< "D:" or a mount point that had no room for it; empty where that is not why
};

/// What came of copying files.
struct CopyResult
{
    static constexpr qsizetype MaxListed = 100;

    int copied = 0;              ///< files
    int failed = 0;              ///< files; without those that a stop left out
    QString fullVolume;          ///< the last that had no room for one of them; empty where all had
    int failedForRoom = 0;       ///< those of the failed that found their volume full
    qint64 bytesWithoutRoom = 0; ///< the size of these
    QList<CopyFailure> failures; ///< the first MaxListed of them

    void add(const CopyResult &other);
};

/// Is asked before each file, and now and then within a large one, with the number of files that are done.
/// False stops the copying: the file at hand is not copied then.
using CopyControl = std::function<bool(int filesDone)>;

/// Copies every file at and below the folder `source` to the same place below `target`, hidden files included
/// and links left out. Each takes its place whole: what stands there is replaced then, and stays when it is
/// read-only or the copy fails. Blocks for as long as it takes.
///
/// Nothing is copied, and nothing has failed, for a folder without files, for one that is missing, and for a
/// target that is the source or lies below it.
[[nodiscard]] CopyResult copyDirectory(const QString &source, const QString &target,
                                       const CopyControl &goOn = {});

/// How many files copyDirectory() would find.
[[nodiscard]] int countFiles(const QString &source);

/// Whether `path` is `folder` or lies below it, by their names alone.
[[nodiscard]] bool isWithin(const QString &path, const QString &folder);

} // namespace Zandrove
