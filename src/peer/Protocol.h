#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QMetaType>

#include <optional>

/// The frame that carries everything between two PCs, as a datagram or as a run of bytes in the TCP stream: a
/// 20-byte big-endian header and a payload. docs/protocol.md describes the whole wire.
namespace Zandrove::Protocol {

constexpr quint32 Magic = 0x5A445256; ///< "ZDRV"
constexpr quint16 Version = 1;
constexpr int HeaderSize = 20; ///< bytes

/// Type of a message, 16 bits on the wire. A received value may be any other number.
enum class MessageType : quint16 {
    Discovery = 1,
    ConnectRequest = 16,
    ConnectAccept = 17,
    ConnectReject = 18,
    Disconnect = 19,
    Heartbeat = 20,
    SessionEnd = 22,
    TransferStart = 48,
    FileHeader = 49,
    FileData = 50,
    FileEnd = 51,
    FileAck = 52,
    TransferPause = 54,
    TransferResume = 55,
    TransferCancel = 56,
    TransferComplete = 57,
    TransferReset = 59,
    AppStart = 96,
    AppEnd = 97,
    SettingStart = 112,
    SettingData = 113,
    SettingEnd = 114,
    SettingComplete = 115,
};

/// The six header fields, in wire order. Version, sequence and checksum are written and never checked.
struct FrameHeader
{
    quint32 magic = Magic;
    quint16 version = Version;
    quint16 type = 0;
    quint32 length = 0; ///< payload bytes
    quint32 sequence = 0;
    quint32 checksum = 0; ///< calculateChecksum of the payload
};

/// The whole frame for a message.
[[nodiscard]] QByteArray buildFrame(MessageType type, const QByteArray &payload, quint32 sequence);

/// Builds all frames of one copy, by UDP and TCP alike: they share one running number, the first is 1.
class FrameBuilder final
{
public:
    [[nodiscard]] QByteArray buildPacket(MessageType type, const QByteArray &payload)
    {
        return buildFrame(type, payload, ++m_sequence);
    }

private:
    quint32 m_sequence = 0;
};

/// The header at the start of `bytes`, or nothing while fewer than HeaderSize bytes are there. The magic is
/// not judged.
[[nodiscard]] std::optional<FrameHeader> readHeader(QByteArrayView bytes);

} // namespace Zandrove::Protocol

Q_DECLARE_METATYPE(Zandrove::Protocol::MessageType)
