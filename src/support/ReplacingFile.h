#pragma once

#include "support/PartialFile.h"

#include <QByteArray>
#include <QString>

namespace Zandrove {

/// A `PartialFile` with a place that is known from the start: what is written comes to stand there whole or
/// not at all, and only commit() puts it there, instead of the file or link that may stand there. Until then,
/// and after any failure, what stands there is as it was.
///
/// Each operation returns false where it failed, and reason() says why from then on. One thread at a time.
class ReplacingFile final
{
public:
    /// Touches nothing yet.
    explicit ReplacingFile(const QString &path)
        : m_path(path)
    {
    }

    /// Makes the folders on the way, and the temporary file. Fails for a path where a folder or a read-only
    /// file stands.
    [[nodiscard]] bool open();
    [[nodiscard]] bool write(const QByteArray &bytes);
    /// Hands everything to the system, and gives it its name.
    [[nodiscard]] bool commit();

    /// Why it failed, in the system's words or translated; empty until then.
    [[nodiscard]] QString reason() const { return m_reason; }
    /// The volume that had no room for it, when that is why it failed: "D:" or a mount point; else empty.
    [[nodiscard]] QString fullVolume() const { return m_fullVolume; }

private:
    bool fail(const QString &reason);
    bool fail(unsigned long code);

    QString m_path;
    PartialFile m_file;
    QString m_reason;
    QString m_fullVolume;
};

} // namespace Zandrove
