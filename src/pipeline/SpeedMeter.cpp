#include "pipeline/SpeedMeter.h"

namespace Zandrove {

void SpeedMeter::start()
{
    m_timer.start();
    m_lastBytes = 0;
    m_speed = 0.0;
}

void SpeedMeter::measure(qint64 totalBytes, std::chrono::milliseconds minimum)
{
    const qint64 elapsed = m_timer.elapsed();
    if (elapsed <= minimum.count())
        return;
    m_speed = double(totalBytes - m_lastBytes) * 1000.0 / double(elapsed);
    m_lastBytes = totalBytes;
    m_timer.restart();
}

} // namespace Zandrove
