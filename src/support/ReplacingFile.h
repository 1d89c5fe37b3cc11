#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace Zandrove {

/// A file that comes to stand in its place whole or not at all. What is written goes beside it under a
/// temporary name; only commit() gives it its own name, in place of the file or link that may stand there.
/// Until then, and after any failure, what stands there is as it was, and nothing temporary is left.
///
/// Each operation returns false where it failed, and reason() says why from then on. One thread at a time.
class ReplacingFile final
{
    Q_DISABLE_COPY_MOVE(ReplacingFile)

public:
    /// Touches nothing yet.
    explicit ReplacingFile(const QString &path);
    /// Removes what was not committed.
    ~ReplacingFile();

    /// Makes the folders on the way, and the temporary file. Fails for a path where a folder or a read-only
    /// file stands.
    [[nodiscard]] bool open();
    [[nodiscard]] bool write(const QByteArray &bytes);
    /// Hands everything to the system and renames, once as much stands on the disk as was written.
    [[nodiscard]] bool commit();

    /// Why it failed, in the system's words or translated; empty until then.
    [[nodiscard]] QString reason() const { return m_reason; }
    /// The volume that had no room for it, when that is why it failed: "D:" or a mount point; else empty.
    [[nodiscard]] QString fullVolume() const { return m_fullVolume; }

private:
    bool fail(const QString &reason);
    bool failForSystem(qint64 bytes);

    QString m_path;
    QFile m_file; // the temporary one
    qint64 m_written = 0;
    QString m_reason;
    QString m_fullVolume;
};

} // namespace Zandrove
