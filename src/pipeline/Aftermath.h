#pragma once

#include "core/common/RunSummary.h"

#include <QCoreApplication>

#include <optional>

namespace Zandrove {

/// What a complete run of the Old PC leaves open: applications and settings were sent, and the New PC
/// installs and applies them behind the end of that run. Where it goes before it has said that it is through,
/// nobody knows here what became of them.
class Aftermath final
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Aftermath)

public:
    /// The run of `summary` is over, over this accepted link. One that was not complete, or sent files alone,
    /// leaves nothing open.
    void begin(const RunSummary &summary, quint64 link);
    /// The New PC says that it is through: with the run that is over or, where it is quicker than the last
    /// answers, with the one that is about to be.
    void settled(bool ahead);
    /// Nothing is open any more.
    void close();
    /// The accepted link is that one now: with another one than that of the run, nothing is open.
    void noteLink(quint64 link);

    /// The link has broken, `RunEnd::LinkLost`, or the New PC has called off what it was doing,
    /// `RunEnd::CancelledThere`. Returns the run as its user is to be told of it now: what was sent and is
    /// open is not confirmed. Nothing where nothing was open.
    [[nodiscard]] std::optional<RunSummary> cutOff(RunEnd how);

private:
    std::optional<RunSummary> m_summary;
    quint64 m_link = 0;
    bool m_settledAhead = false;
};

} // namespace Zandrove
