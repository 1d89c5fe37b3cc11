#pragma once

#include <QElapsedTimer>
#include <QtGlobal>

#include <chrono>

namespace Zandrove {

/// Measures the speed of a transfer over intervals: each measurement covers the time since the one before.
class SpeedMeter final
{
public:
    /// Progress is measured no more often than this while data flows.
    static constexpr std::chrono::milliseconds Interval{500};

    /// Starts the first interval at 0 bytes and forgets the speed.
    void start();

    /// Ends the interval at `totalBytes` moved since start, if it has run for more
    /// than `minimum`; else does nothing.
    void measure(qint64 totalBytes, std::chrono::milliseconds minimum);

    /// As of the last measurement.
    [[nodiscard]] double bytesPerSecond() const { return m_speed; }

private:
    QElapsedTimer m_timer;
    qint64 m_lastBytes = 0;
    double m_speed = 0.0;
};

} // namespace Zandrove
