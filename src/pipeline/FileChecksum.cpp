#include "pipeline/FileChecksum.h"

namespace Zandrove {

namespace {

/// Reflected polynomial of CRC-32, IEEE 802.3.
constexpr quint32 Polynomial = 0xEDB88320;

constexpr std::array<quint32, 256> makeTable()
{
    std::array<quint32, 256> table{};
    for (quint32 index = 0; index < table.size(); ++index) {
        quint32 entry = index;
        for (int bit = 0; bit < 8; ++bit)
            entry = (entry & 1) ? (entry >> 1) ^ Polynomial : entry >> 1;
        table[index] = entry;
    }
    // The entries in which both ends agree to differ from the standard table.
    table[111] = 0xDD0D7A9B;
    table[237] = 0xDEDE86C5;
    table[238] = 0x47D7977F;
    table[239] = 0x30D0D6E9;
    table[240] = 0xBDD3D09C;
    table[241] = 0xCAD4E10A;
    table[242] = 0x53DDA0B0;
    table[243] = 0x24DAB526;
    return table;
}

constexpr std::array<quint32, 256> Table = makeTable();

} // namespace

void FileChecksum::update(QByteArrayView bytes)
{
    quint32 value = m_register;
    for (const char byte : bytes)
        value = Table[(value ^ quint8(byte)) & 0xFF] ^ (value >> 8);
    m_register = value;
}

const std::array<quint32, 256> &FileChecksum::table()
{
    return Table;
}

} // namespace Zandrove
