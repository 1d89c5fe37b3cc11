#pragma once

#include <QtGlobal>

#include <atomic>

namespace Zandrove {

/// Tells the current run of a scanner from cancelled and older ones, so that a run that was given up and is
/// still leaving can neither go on nor speak for the next one. Any thread.
class ScanRuns final
{
public:
    /// Number of a new run, from 1; 0 where one is under way.
    [[nodiscard]] quint64 begin()
    {
        const quint64 run = ++m_last;
        quint64 none = 0;
        return m_current.compare_exchange_strong(none, run) ? run : 0;
    }

    /// Whether `run` is still wanted.
    [[nodiscard]] bool isCurrent(quint64 run) const { return m_current == run; }
    [[nodiscard]] bool isRunning() const { return m_current != 0; }

    /// The end of `run`. False where it was cancelled before.
    [[nodiscard]] bool end(quint64 run) { return m_current.compare_exchange_strong(run, 0); }

    void cancel() { m_current = 0; }

private:
    std::atomic<quint64> m_current = 0;
    std::atomic<quint64> m_last = 0;
};

} // namespace Zandrove
