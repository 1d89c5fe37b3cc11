#pragma once

namespace Zandrove {

/// Judges from what comes, and from the seconds that pass without, whether the peer of a link is still there.
/// It knows no clock: whoever owns it counts the seconds. One that this program spends stuck, or this PC
/// asleep, is no second of silence then, as nobody listened.
class Liveness final
{
public:
    static constexpr int SilentAfter = 15; ///< seconds
    static constexpr int LostAfter = 120;  ///< seconds
    static constexpr int TellInterval = 5; ///< seconds

    enum class Verdict {
        Nothing, ///< nothing that is worth telling
        Silent,  ///< nothing has come for silentSeconds(); due every 5 s
        Lost,    ///< the peer is given up
    };

    /// Bytes came. Returns whether the link was called silent before.
    [[nodiscard]] bool came();
    /// The peer sends heartbeats. Of one that never has, silence says nothing: it is not given up.
    void heartbeatCame() { m_beats = true; }
    /// A second has passed. While this side does not read, none counts, and the count begins anew.
    [[nodiscard]] Verdict secondPassed(bool reading);

    [[nodiscard]] int silentSeconds() const { return m_seconds; }

private:
    int m_seconds = 0; ///< since anything last came
    bool m_beats = false;
};

} // namespace Zandrove
