#include "peer/Liveness.h"

#include <utility>

namespace Zandrove {

bool Liveness::came()
{
    return std::exchange(m_seconds, 0) >= SilentAfter;
}

Liveness::Verdict Liveness::secondPassed(bool reading)
{
    m_seconds = reading ? m_seconds + 1 : 0;
    if (m_seconds >= LostAfter && m_beats)
        return Verdict::Lost;
    if (m_seconds >= SilentAfter && m_seconds % TellInterval == 0)
        return Verdict::Silent;
    return Verdict::Nothing;
}

} // namespace Zandrove
