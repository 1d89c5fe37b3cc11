#include "pipeline/RunTally.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Zandrove {

namespace {

constexpr qsizetype MaxVolumeName = 100; // characters; the name may be of the peer's making

int &countFor(OutcomeCounts &counts, ItemOutcome outcome)
{
    switch (outcome) {
    case ItemOutcome::Arrived:
        return counts.arrived;
    case ItemOutcome::WasThere:
        return counts.wasThere;
    case ItemOutcome::WasDifferent:
        return counts.wasDifferent;
    case ItemOutcome::Failed:
        return counts.failed;
    case ItemOutcome::NotConfirmed:
        return counts.notConfirmed;
    case ItemOutcome::Pending:
        break;
    }
    return counts.pending;
}

bool isOnNewPC(ItemOutcome outcome)
{
    return outcome == ItemOutcome::Arrived || outcome == ItemOutcome::WasThere;
}

void removeFirst(QList<ItemResult> &list, const QString &path)
{
    const auto it =
        std::find_if(list.cbegin(), list.cend(), [&](const ItemResult &item) { return item.path == path; });
    if (it != list.cend())
        list.erase(it);
}

} // namespace

RunTally::RunTally(int role, const QString &ownName, const QString &peerName, const QDateTime &startTime)
{
    m_summary.role = role;
    m_summary.ownName = ownName;
    m_summary.peerName = peerName;
    m_summary.startTime = startTime;
}

void RunTally::expect(ItemKind kind, int count, qint64 bytes)
{
    constexpr qint64 MostBytes = std::numeric_limits<qint64>::max() / 2;
    OutcomeCounts &counts = countsOf(kind);
    const int room = std::numeric_limits<int>::max() - counts.total();
    counts.pending += std::clamp(count, 0, room);
    m_summary.missingBytes =
        std::min(m_summary.missingBytes + std::clamp<qint64>(bytes, 0, MostBytes), MostBytes);
}

void RunTally::expectNamed(ItemKind kind, const QString &name)
{
    expect(kind, 1, 0);
    if (m_summary.items.size() < RunSummary::MaxListed)
        m_summary.items.append({kind, ItemOutcome::Pending, name, {}, 0});
}

void RunTally::settle(const ItemResult &result)
{
    OutcomeCounts &counts = countsOf(result.kind);
    if (counts.pending < 1)
        expect(result.kind, 1, result.bytes);
    --counts.pending;
    ++countFor(counts, result.outcome);
    if (result.outcome == ItemOutcome::Arrived)
        m_summary.arrivedBytes += result.bytes;
    if (isOnNewPC(result.outcome))
        m_summary.missingBytes = std::max<qint64>(m_summary.missingBytes - result.bytes, 0);
    else
        list(result);
    m_settled.append(result);
}

void RunTally::settleNamed(const ItemResult &result)
{
    const auto pending =
        std::find_if(m_summary.items.begin(), m_summary.items.end(), [&](const ItemResult &item) {
            return item.kind == result.kind && item.path == result.path &&
                   item.outcome == ItemOutcome::Pending;
        });
    if (pending != m_summary.items.end()) {
        *pending = result;
    } else {
        expect(result.kind, 1, 0);
        if (m_summary.items.size() < RunSummary::MaxListed)
            m_summary.items.append(result);
    }
    settle(result);
}

void RunTally::takeBack(const ItemResult &result)
{
    OutcomeCounts &counts = countsOf(result.kind);
    --countFor(counts, result.outcome);
    expect(result.kind, 1, isOnNewPC(result.outcome) ? result.bytes : 0);
    if (result.outcome == ItemOutcome::Arrived)
        m_summary.arrivedBytes -= result.bytes;
    removeFirst(result.outcome == ItemOutcome::WasDifferent ? m_summary.different : m_summary.notArrived,
                result.path);
}

void RunTally::noteFullVolume(const QString &volume, const QString &pcName, qint64 bytes)
{
    if (volume.isEmpty())
        return;
    QList<FullVolume> &rows = m_summary.fullVolumes;
    const QString name = volume.left(MaxVolumeName);
    auto row =
        std::find_if(rows.begin(), rows.end(), [&](const FullVolume &known) { return known.volume == name; });
    if (row == rows.end() && rows.size() >= MaxFullVolumes)
        return;
    if (row == rows.end())
        row = rows.insert(rows.end(), {name, pcName, 0, 0});
    ++row->files;
    row->bytes += bytes;
}

void RunTally::setSavedFolders(const QMap<QString, QString> &paths, const QMap<QString, int> &counts,
                               const QMap<QString, QString> &samples)
{
    m_summary.savedFolderPaths = paths;
    m_summary.savedFolderCounts = counts;
    m_summary.savedFolderSamples = samples;
}

void RunTally::close(RunEnd end, const QDateTime &endTime, const QString &reason)
{
    for (ItemResult &item : m_summary.items) {
        if (item.outcome != ItemOutcome::Pending)
            continue;
        item.outcome = ItemOutcome::NotConfirmed;
        item.reason = reason;
        settle(item);
    }
    for (OutcomeCounts *counts : {&m_summary.files, &m_summary.apps, &m_summary.settings})
        counts->notConfirmed += std::exchange(counts->pending, 0);
    m_summary.end = end;
    m_summary.endTime = endTime;
}

QList<ItemResult> RunTally::takeSettled()
{
    return std::exchange(m_settled, {});
}

void RunTally::list(const ItemResult &result)
{
    QList<ItemResult> &list =
        result.outcome == ItemOutcome::WasDifferent ? m_summary.different : m_summary.notArrived;
    if (list.size() < RunSummary::MaxListed)
        list.append(result);
}

OutcomeCounts &RunTally::countsOf(ItemKind kind)
{
    switch (kind) {
    case ItemKind::Application:
        return m_summary.apps;
    case ItemKind::Setting:
        return m_summary.settings;
    case ItemKind::File:
        break;
    }
    return m_summary.files;
}

} // namespace Zandrove
