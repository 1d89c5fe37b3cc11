#pragma once

#include "peer/Protocol.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace Zandrove {

/// How far the run in front of a message is.
enum class RunState : int {
    None,       ///< there is none, and nothing of one is left
    On,         ///< it takes what comes
    WorkingOff, ///< the peer has sent everything; the report is still due
    Settling,   ///< it has its report; settings are still being applied
};

/// A message of a run, as it came.
struct RunMessage
{
    Protocol::MessageType type;
    QByteArray payload;
};

/// What arrives while a run is worked off, or its settings are still being applied: what begins or resets a
/// run waits for that, the end of a session for the report, and whatever follows a waiting message waits with
/// it. A pause or a resume never waits, and in a paused run the end of the session doesn't either.
class RunInbox final
{
public:
    /// Keeps the message where it must wait. False, and nothing kept, where it is to be worked off at once.
    [[nodiscard]] bool keep(Protocol::MessageType type, const QByteArray &payload, RunState run,
                            bool isPaused);
    /// The next message whose turn has come.
    [[nodiscard]] std::optional<RunMessage> take(RunState run);
    /// Forgets all, because the run in front of them was called off. True when the end of the session was
    /// among them, which stands all the same.
    [[nodiscard]] bool drop();

    /// Logs the message, among the first of them or where it begins a file.
    void trace(Protocol::MessageType type, qsizetype size);

    [[nodiscard]] bool isEmpty() const { return m_messages.isEmpty(); }

private:
    QList<RunMessage> m_messages;
    int m_traced = 0; // messages so far, kept or not
};

} // namespace Zandrove
