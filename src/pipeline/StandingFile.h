#pragma once

#include "pipeline/FileChecksum.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>

namespace Zandrove {

/// A file that stood on this PC before one of the peer that is to lie in its place, held against it: read in
/// step with what arrives, so that the end of the file has to wait for nothing. Each file's own size is asked
/// first; where it differs nothing is read.
class StandingFile final
{
public:
    /// Begins with the file at `path`; `size` is what the peer's has, in bytes.
    void open(const QString &path, qint64 size);
    void close();
    /// Reads on: as many bytes of the peer's file have come.
    void advance(qint64 bytes);
    /// Reads what is left, unless `isCancelled` says so meanwhile.
    template <typename IsCancelled>
    void readOn(IsCancelled isCancelled)
    {
        while (mayBeIdentical() && m_left > 0 && !isCancelled())
            advance(std::min(BlockBytes, m_left));
    }
    /// Once as many bytes have come as were announced: whether the content is that with this checksum.
    [[nodiscard]] bool isIdentical(quint32 checksum) const
    {
        return mayBeIdentical() && m_left == 0 && m_checksum.value() == checksum;
    }

private:
    static constexpr qint64 BlockBytes = 524288; ///< 512 KiB

    [[nodiscard]] bool mayBeIdentical() const { return m_file.isOpen(); }

    QFile m_file; // open while it may be identical
    FileChecksum m_checksum;
    QByteArray m_block;
    qint64 m_left = 0;
};

} // namespace Zandrove
