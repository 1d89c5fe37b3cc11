#pragma once

#include "core/common/Records.h"

#include <optional>

namespace Zandrove {

/// The handshake on the current connection: who dialled whom, and whether the answer was yes. It knows no
/// socket and sends nothing: events go in, and what they mean comes back. An event that does not fit the
/// state changes nothing.
class Pairing final
{
public:
    enum class State {
        Idle,     ///< there is no connection
        Dialling, ///< an own dial, which the peer has not answered yet
        Unpaired, ///< the peer refused, or it has left
        Accepted, ///< one of the two users has said yes to it
    };

    // The connection.
    void dialled(const PCInfo &target); ///< the current connection is now an own dial to `target`
    void admitted(const PCInfo &asker); ///< the current connection is now one that this copy's user let in
    void ended();                       ///< there is no current connection any more
    /// The peer says that it goes, or has gone. An own dial that it left unanswered stays one: its connection
    /// will fail.
    void peerLeft();
    /// The two are no pair any more. An accepted connection that has merely failed leaves them one.
    void forgetPeer() { m_peer.reset(); }

    /// The peer at `ip` says yes, or no. Only the one that dialled can be told an answer, and once: on any
    /// other connection it is a stranger who answers for this copy's user. False then.
    [[nodiscard]] bool toldYes(const QString &ip);
    [[nodiscard]] bool toldNo();

    [[nodiscard]] State state() const { return m_state; }
    /// The connection that is accepted now: another number for each, 0 while there is none.
    [[nodiscard]] quint64 acceptedLink() const { return m_state == State::Accepted ? m_links : 0; }
    [[nodiscard]] bool isPaired() const { return m_peer.has_value(); }
    /// The other half of the pair; a default record without one.
    [[nodiscard]] PCInfo peer() const { return m_peer.value_or(PCInfo()); }
    /// The one that is being dialled, or was dialled last.
    [[nodiscard]] PCInfo target() const { return m_target; }

private:
    void accept(const PCInfo &peer);

    State m_state = State::Idle;
    quint64 m_links = 0; ///< accepted so far
    PCInfo m_target;
    std::optional<PCInfo> m_peer;
};

} // namespace Zandrove
