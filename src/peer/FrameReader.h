#pragma once

#include "peer/Protocol.h"

#include <QByteArray>

#include <array>
#include <limits>
#include <optional>

class QIODevice;

namespace Zandrove {

/// One message as it came in.
struct Frame
{
    Protocol::MessageType type{}; ///< may be a number that the enumeration does not name
    QByteArray payload;
};

/// Cuts a stream of bytes into frames. Every byte is copied once, from the source straight into the payload
/// it belongs to, and memory for a payload grows only with the bytes that have really come.
///
/// Nothing of a call outlives it, so a caller may do anything to the reader between two frames.
class FrameReader final
{
public:
    static constexpr qsizetype NoLimit = std::numeric_limits<qsizetype>::max();

    /// Takes bytes from `source` up to the end of one frame and returns that frame; nothing when `source` has
    /// no more bytes before the end. Call again until nothing comes.
    ///
    /// A wrong magic, or a length that makes the frame shorter than its header as a signed 32-bit number,
    /// costs everything: the frame begun and all that `source` holds are dropped. So does a frame of which
    /// more than `limit` bytes, header included, have come without its end.
    [[nodiscard]] std::optional<Frame> read(QIODevice &source, qsizetype limit = NoLimit);

    /// Forgets the frame begun.
    void clear();

    /// Bytes of the frame begun, header included.
    [[nodiscard]] qsizetype waiting() const { return m_headerFill + m_payloadFill; }

private:
    [[nodiscard]] bool fillHeader(QIODevice &source);
    [[nodiscard]] bool fillPayload(QIODevice &source, qsizetype limit);
    void growPayload();
    void drop(QIODevice &source);

    std::array<char, Protocol::HeaderSize> m_header{};
    qsizetype m_headerFill = 0;
    qsizetype m_payloadLength = 0; ///< announced by a complete header
    qsizetype m_payloadFill = 0;
    QByteArray m_payload; ///< room for the payload, of which m_payloadFill bytes are valid
};

} // namespace Zandrove
