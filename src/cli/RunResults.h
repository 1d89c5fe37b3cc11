#pragma once

#include "cli/ExitCode.h"

namespace Zandrove::Cli {

/// Sums up the runs of one session into one exit code: that of the last run, but a failed or skipped item of
/// an earlier run is not forgotten.
class RunResults final
{
public:
    void record(ExitCode run)
    {
        m_last = run;
        m_missing = m_missing || run == SomethingMissing;
    }

    [[nodiscard]] ExitCode exitCode() const
    {
        return m_last == EverythingMoved && m_missing ? SomethingMissing : m_last;
    }

private:
    ExitCode m_last = EverythingMoved;
    bool m_missing = false;
};

} // namespace Zandrove::Cli
