#include "pipeline/Aftermath.h"

#include "core/common/Records.h"

#include <utility>

namespace Zandrove {

void Aftermath::begin(const RunSummary &summary, quint64 link)
{
    const bool settledAhead = m_settledAhead;
    close();
    if (settledAhead || summary.role != OldPC || summary.end != RunEnd::Complete ||
        summary.apps.arrived + summary.settings.arrived == 0)
        return;
    m_summary = summary;
    m_link = link;
}

void Aftermath::settled(bool ahead)
{
    close();
    m_settledAhead = ahead;
}

void Aftermath::close()
{
    m_summary.reset();
    m_settledAhead = false;
}

void Aftermath::noteLink(quint64 link)
{
    if (link != m_link)
        close();
}

std::optional<RunSummary> Aftermath::cutOff(RunEnd how)
{
    std::optional<RunSummary> summary = std::exchange(m_summary, std::nullopt);
    if (!summary)
        return summary;
    summary->end = how;
    for (ItemResult &item : summary->items) {
        if (item.outcome != ItemOutcome::Arrived)
            continue;
        const bool isApp = item.kind == ItemKind::Application;
        const QString reason =
            how == RunEnd::LinkLost
                ? (isApp ? tr("%1 was lost before it said that this is installed")
                         : tr("%1 was lost before it said that this is applied"))
                : (isApp ? tr("%1 called the transfer off before it said that this is installed")
                         : tr("%1 called the transfer off before it said that this is applied"));
        item.outcome = ItemOutcome::NotConfirmed;
        item.reason = reason.arg(summary->peerName);
        if (summary->notArrived.size() < RunSummary::MaxListed)
            summary->notArrived.append(item);
    }
    for (OutcomeCounts *counts : {&summary->apps, &summary->settings})
        counts->notConfirmed += std::exchange(counts->arrived, 0);
    return summary;
}

} // namespace Zandrove
