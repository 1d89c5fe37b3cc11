#pragma once

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>

/// What a user is told of a run: for every ticked file, application and setting one outcome. The records of
/// the workers count messages; these count things.
namespace Zandrove {

enum class ItemKind : int { File, Application, Setting };

enum class ItemOutcome : int {
    Pending,      ///< nothing is known yet; none is pending once the run is over
    Arrived,      ///< stands on the New PC, whole
    WasThere,     ///< stood there before and was left alone; identical, or not known to differ
    WasDifferent, ///< stood there before with other content: the Old PC's was not moved
    Failed,       ///< did not arrive, for the reason that is told
    NotConfirmed, ///< may have arrived: no answer came. Counts as failed for the user
};

/// How a run ended.
enum class RunEnd : int { Running, Complete, CancelledHere, CancelledThere, LinkLost, Reset };

/// One item that has an outcome.
struct ItemResult
{
    ItemKind kind = ItemKind::File;
    ItemOutcome outcome = ItemOutcome::Pending;
    QString path;   ///< of a file: absolute, on this PC (Old PC: its source; New PC: where it lies or should
                    ///< lie); of others the name that is shown
    QString reason; ///< translated; empty for what arrived
    qint64 bytes = 0; ///< of a file
};

/// How many items of one kind came to which outcome.
struct OutcomeCounts
{
    int arrived = 0;
    int wasThere = 0; ///< without those that differ
    int wasDifferent = 0;
    int failed = 0;
    int notConfirmed = 0;
    int pending = 0;

    [[nodiscard]] int total() const
    {
        return arrived + wasThere + wasDifferent + failed + notConfirmed + pending;
    }
    /// Items whose content is not on the New PC, or isn't known to be.
    [[nodiscard]] int missing() const { return wasDifferent + failed + notConfirmed + pending; }
};

/// Files that found no room on one volume of the New PC.
struct FullVolume
{
    QString volume; ///< "D:" or a mount point
    QString pcName; ///< the PC that it belongs to
    int files = 0;
    qint64 bytes = 0;
};

/// A run as its user is told of it.
struct RunSummary
{
    static constexpr int MaxListed = 10000; ///< items of each list below; the counts hold all

    int role = 0; ///< of this PC, a `Role`
    RunEnd end = RunEnd::Running;
    QString ownName;
    QString peerName;
    QDateTime startTime;
    QDateTime endTime;
    OutcomeCounts files;
    OutcomeCounts apps;
    OutcomeCounts settings;
    qint64 arrivedBytes = 0; ///< of files that arrived
    qint64 missingBytes = 0; ///< of files that count as missing
    QList<ItemResult>
        notArrived; ///< failed or not confirmed, of all kinds, in the order in which it was known
    QList<ItemResult> different; ///< was there with other content
    QList<ItemResult> items;     ///< applications and settings, whatever became of them
    QList<FullVolume> fullVolumes;
    QMap<QString, QString> savedFolderPaths;   ///< New PC: receiving folder name to local path
    QMap<QString, int> savedFolderCounts;      ///< New PC: receiving folder name to number of files
    QMap<QString, QString> savedFolderSamples; ///< New PC: receiving folder name to "(a, b, c, ...)"

    /// Items of all kinds.
    [[nodiscard]] qint64 total() const { return qint64(files.total()) + apps.total() + settings.total(); }
    /// Bytes per second over whole seconds; 0 for a run that took less than one.
    [[nodiscard]] double averageSpeed() const
    {
        const qint64 seconds = startTime.secsTo(endTime);
        return seconds > 0 ? double(arrivedBytes) / double(seconds) : 0.0;
    }
    /// Everything that was ticked stands on the New PC as it stands on the Old PC.
    [[nodiscard]] bool everythingArrived() const
    {
        return end == RunEnd::Complete && files.missing() + apps.missing() + settings.missing() == 0;
    }
};

} // namespace Zandrove

Q_DECLARE_METATYPE(Zandrove::ItemResult)
Q_DECLARE_METATYPE(Zandrove::RunSummary)
