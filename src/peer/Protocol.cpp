#include "peer/Protocol.h"

#include "support/Utilities.h"

#include <QtEndian>

#include <cstring>

namespace Zandrove::Protocol {

QByteArray buildFrame(MessageType type, const QByteArray &payload, quint32 sequence)
{
    QByteArray frame(HeaderSize + payload.size(), Qt::Uninitialized);
    char *bytes = frame.data();
    qToBigEndian<quint32>(Magic, bytes);
    qToBigEndian<quint16>(Version, bytes + 4);
    qToBigEndian<quint16>(quint16(type), bytes + 6);
    qToBigEndian<quint32>(quint32(payload.size()), bytes + 8);
    qToBigEndian<quint32>(sequence, bytes + 12);
    qToBigEndian<quint32>(calculateChecksum(payload), bytes + 16);
    if (!payload.isEmpty())
        std::memcpy(bytes + HeaderSize, payload.constData(), size_t(payload.size()));
    return frame;
}

std::optional<FrameHeader> readHeader(QByteArrayView bytes)
{
    if (bytes.size() < HeaderSize)
        return std::nullopt;
    const char *at = bytes.data();
    return FrameHeader{.magic = qFromBigEndian<quint32>(at),
                       .version = qFromBigEndian<quint16>(at + 4),
                       .type = qFromBigEndian<quint16>(at + 6),
                       .length = qFromBigEndian<quint32>(at + 8),
                       .sequence = qFromBigEndian<quint32>(at + 12),
                       .checksum = qFromBigEndian<quint32>(at + 16)};
}

} // namespace Zandrove::Protocol
