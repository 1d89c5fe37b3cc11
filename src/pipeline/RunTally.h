#pragma once

#include "core/common/RunSummary.h"

#include <QList>
#include <QString>

namespace Zandrove {

/// The sums and lists of one run: each item is pending until it is settled. Memory is bounded but for what
/// waits to be taken.
class RunTally final
{
public:
    static constexpr int MaxFullVolumes = 16; ///< rows; files on further volumes are listed all the same

    RunTally(int role, const QString &ownName, const QString &peerName, const QDateTime &startTime);

    /// `count` items more of that kind are pending, with `bytes` in all. Figures of a peer's making meet
    /// bounds here.
    void expect(ItemKind kind, int count, qint64 bytes);
    /// An application or setting more is pending.
    void expectNamed(ItemKind kind, const QString &name);
    /// One pending item becomes this one; one that was not expected joins the run.
    void settle(const ItemResult &result);
    /// As settle, for the first pending application or setting of that kind and name.
    void settleNamed(const ItemResult &result);
    /// A settled item is pending again.
    void takeBack(const ItemResult &result);
    /// A file of `bytes` found no room there; nothing for an empty name.
    void noteFullVolume(const QString &volume, const QString &pcName, qint64 bytes);
    void setSavedFolders(const QMap<QString, QString> &paths, const QMap<QString, int> &counts,
                         const QMap<QString, QString> &samples);

    /// The list of what did not arrive takes no more.
    [[nodiscard]] bool isListFull() const { return m_summary.notArrived.size() >= RunSummary::MaxListed; }
    /// The item settled last is not handed out.
    void dropLastSettled() { m_settled.removeLast(); }

    [[nodiscard]] bool isClosed() const { return m_summary.end != RunEnd::Running; }
    /// The run is over: what is pending is not confirmed, for `reason` where it has a name.
    void close(RunEnd end, const QDateTime &endTime, const QString &reason);

    [[nodiscard]] const RunSummary &summary() const { return m_summary; }
    [[nodiscard]] QList<ItemResult> takeSettled();

private:
    [[nodiscard]] OutcomeCounts &countsOf(ItemKind kind);
    void list(const ItemResult &result);

    RunSummary m_summary;
    QList<ItemResult> m_settled;
};

} // namespace Zandrove
