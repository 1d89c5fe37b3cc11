#pragma once

#include "core/common/Records.h"

#include <optional>

namespace Zandrove {

/// The handshake on the current connection: who asked whom, who may answer, and whether the answer was yes.
/// It knows no socket and sends nothing: events go in, and what they mean comes back. An event that does not
/// fit the state changes nothing.
class Pairing final
{
public:
    enum class State {
        Idle,     ///< there is no connection
        Dialling, ///< an own dial, which the peer has not answered yet
        Unpaired, ///< nobody has said yes: the peer dialled, or it refused, or it has left
        Accepted, ///< one of the two users has said yes to it
    };

    // The connection.
    void dialled(const PCInfo &target); ///< the current connection is now an own dial to `target`
    void cameIn();                      ///< the current connection is now one that a peer has dialled
    void ended();                       ///< there is no current connection any more
    /// The peer says that it goes, or has gone. An own dial that it left unanswered stays one: its connection
    /// will fail.
    void peerLeft();
    /// The two are no pair any more. An accepted connection that has merely failed leaves them one.
    void forgetPeer() { m_peer.reset(); }

    // The handshake's messages.
    void asked(const PCInfo &asker); ///< a question, which replaces an open one
    /// The peer says yes or no. Only the one that dialled can be told an answer, and once: on any other
    /// connection it is a stranger who answers for this copy's user. False then.
    [[nodiscard]] bool toldYes();
    [[nodiscard]] bool toldNo();

    /// This copy's user answers `question`, 0 for the open one. False, and nothing changed, when that one is
    /// not open. Where nobody ever asked, an answer means whoever is there.
    [[nodiscard]] bool answerYes(quint64 question);
    [[nodiscard]] bool answerNo(quint64 question);

    [[nodiscard]] State state() const { return m_state; }
    /// Whether an answer is awaited, from the peer or from this copy's user.
    [[nodiscard]] bool isOpen() const { return m_state == State::Dialling || m_questionOpen; }
    /// The question that waits for the user: another number for each, 0 while there is none.
    [[nodiscard]] quint64 openQuestion() const { return m_questionOpen ? m_questions : 0; }
    /// The connection that is accepted now: another number for each, 0 while there is none.
    [[nodiscard]] quint64 acceptedLink() const { return m_state == State::Accepted ? m_links : 0; }
    [[nodiscard]] bool isPaired() const { return m_peer.has_value(); }
    /// The other half of the pair; a default record without one.
    [[nodiscard]] PCInfo peer() const { return m_peer.value_or(PCInfo()); }

private:
    void begin(State state, const PCInfo &candidate);
    void accept();
    [[nodiscard]] bool mayAnswer(quint64 question) const;

    State m_state = State::Idle;
    bool m_questionOpen = false;
    quint64 m_questions = 0; ///< asked so far, which is the number of the last one
    quint64 m_links = 0;     ///< accepted so far
    PCInfo m_candidate;      ///< the peer of the handshake
    std::optional<PCInfo> m_peer;
};

} // namespace Zandrove
