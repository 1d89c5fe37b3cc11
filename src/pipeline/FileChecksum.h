#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <array>

namespace Zandrove {

/// The checksum that guards a file's content: a reflected 32-bit CRC with the structure of CRC-32 (IEEE
/// 802.3) whose table differs from the standard one in eight entries. The table is part of the wire format;
/// the value is not the standard CRC-32 of the file.
class FileChecksum final
{
public:
    /// Takes in the next bytes of the file, in file order.
    void update(QByteArrayView bytes);

    /// The checksum of all bytes so far; 0 for no bytes.
    [[nodiscard]] quint32 value() const { return ~m_register; }

    void reset() { m_register = InitialRegister; }

    /// The 256 table entries.
    [[nodiscard]] static const std::array<quint32, 256> &table();

private:
    static constexpr quint32 InitialRegister = 0xFFFFFFFF;

    quint32 m_register = InitialRegister;
};

} // namespace Zandrove
