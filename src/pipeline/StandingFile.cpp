#include "pipeline/StandingFile.h"

#include "platform/FileAttributes.h"

namespace Zandrove {

void StandingFile::open(const QString &path, qint64 size)
{
    close();
    // Opening a pipe or a device could block for ever.
    if (!Platform::isRegularFile(path))
        return;
    m_file.setFileName(path);
    if (m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && m_file.size() != size)
        m_file.close();
    m_left = size;
}

void StandingFile::close()
{
    m_file.close();
    m_checksum.reset();
    m_left = 0;
}

void StandingFile::advance(qint64 bytes)
{
    if (bytes > m_left)
        m_file.close(); // the peer's file is longer
    while (mayBeIdentical() && bytes > 0) {
        m_block.resize(BlockBytes);
        const qint64 read = m_file.read(m_block.data(), std::min(bytes, BlockBytes));
        if (read <= 0) {
            m_file.close();
            return;
        }
        m_checksum.update(QByteArrayView(m_block).first(read));
        bytes -= read;
        m_left -= read;
    }
}

} // namespace Zandrove
