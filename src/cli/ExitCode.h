#pragma once

#include "core/common/Records.h"

namespace Zandrove::Cli {

/// What the program tells its caller. The README lists these for users.
enum ExitCode : int {
    EverythingMoved = 0, ///< or listed
    RunFailed = 1,       ///< the connection or the run failed, was refused or was ended by the peer
    WrongUsage = 2,      ///< nothing was begun
    TimedOut = 3,
    SomethingMissing = 4, ///< the run finished, but an item failed or was skipped
    Cancelled = 130,      ///< by the user, here
};

/// What a finished run amounts to.
[[nodiscard]] inline ExitCode exitCodeFor(const MigrationReport &report)
{
    const bool complete = report.filesFailed == 0 && report.filesSkipped == 0 && report.appsFailed == 0 &&
                          report.appsSkipped == 0 && report.settingsFailed == 0;
    return complete ? EverythingMoved : SomethingMissing;
}

} // namespace Zandrove::Cli
