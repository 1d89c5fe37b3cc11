#pragma once

#include "core/common/RunSummary.h"

namespace Zandrove::Cli {

/// What the program tells its caller. The README lists these for users.
enum ExitCode : int {
    EverythingMoved = 0, ///< or listed, or nothing stands in the way
    RunFailed = 1,       ///< the connection or the run failed, was refused or was ended by the peer
    WrongUsage = 2,      ///< nothing was begun
    TimedOut = 3,
    SomethingMissing =
        4, ///< the run finished, but an item failed or was there before; or something stands in the way
    Cancelled = 130, ///< by the user, here
};

/// What a run that is over amounts to.
[[nodiscard]] inline ExitCode exitCodeFor(const RunSummary &summary)
{
    if (summary.end == RunEnd::CancelledHere)
        return Cancelled;
    if (summary.end != RunEnd::Complete)
        return RunFailed;
    const int wasThere = summary.files.wasThere + summary.apps.wasThere + summary.settings.wasThere;
    return summary.everythingArrived() && wasThere == 0 ? EverythingMoved : SomethingMissing;
}

} // namespace Zandrove::Cli
