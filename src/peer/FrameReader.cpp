#include "peer/FrameReader.h"

#include <QIODevice>

#include <algorithm>
#include <utility>

namespace Zandrove {

namespace {

/// Bytes taken for a payload at first: a file chunk fits, and a header that lies costs no more.
constexpr qsizetype FirstRoom = 1 << 20;

/// The whole frame's size as both sides reckon it: 32 bits, signed. Below the header size it is no frame.
qint32 frameSize(quint32 length)
{
    return qint32(length + quint32(Protocol::HeaderSize));
}

/// Moves up to `wanted` bytes and returns how many came.
qsizetype take(QIODevice &source, char *to, qsizetype wanted)
{
    const qint64 count = std::min<qint64>(wanted, source.bytesAvailable());
    return count > 0 ? std::max<qsizetype>(source.read(to, count), 0) : 0;
}

} // namespace

std::optional<Frame> FrameReader::read(QIODevice &source, qsizetype limit)
{
    if (m_headerFill < Protocol::HeaderSize && !fillHeader(source))
        return std::nullopt;
    if (!fillPayload(source, limit))
        return std::nullopt;
    const auto header = Protocol::readHeader(m_header);
    Frame frame{Protocol::MessageType(header->type), std::exchange(m_payload, {})};
    clear();
    return frame;
}

void FrameReader::clear()
{
    m_headerFill = 0;
    m_payloadLength = 0;
    m_payloadFill = 0;
    m_payload.clear();
}

/// Whether a good header is complete now.
bool FrameReader::fillHeader(QIODevice &source)
{
    m_headerFill += take(source, m_header.data() + m_headerFill, Protocol::HeaderSize - m_headerFill);
    if (m_headerFill < Protocol::HeaderSize)
        return false;
    const auto header = Protocol::readHeader(m_header);
    const qint32 size = frameSize(header->length);
    if (header->magic != Protocol::Magic || size < Protocol::HeaderSize) {
        drop(source);
        return false;
    }
    m_payloadLength = size - Protocol::HeaderSize;
    return true;
}

/// Whether the payload is complete now.
bool FrameReader::fillPayload(QIODevice &source, qsizetype limit)
{
    while (m_payloadFill < m_payloadLength) {
        if (m_payloadFill == m_payload.size())
            growPayload();
        const qsizetype count =
            take(source, m_payload.data() + m_payloadFill, m_payload.size() - m_payloadFill);
        if (count == 0) {
            if (waiting() > limit)
                drop(source);
            return false;
        }
        m_payloadFill += count;
    }
    return true;
}

void FrameReader::growPayload()
{
    const qsizetype room = std::min(m_payloadLength, std::max(FirstRoom, 2 * m_payload.size()));
    if (m_payload.isEmpty())
        m_payload = QByteArray(room, Qt::Uninitialized);
    else
        m_payload.resize(room);
}

void FrameReader::drop(QIODevice &source)
{
    clear();
    source.skip(source.bytesAvailable());
}

} // namespace Zandrove
