#pragma once

#include <QString>

namespace Zandrove::Platform {

/// A new file that this program writes and then gives another name. As long as it is open no other copy of
/// this program takes it for a leftover, and when the program ends, however it ends, that is over. Written
/// without a buffer, so that a full disk shows at the write that meets it.
class OwnedFile final
{
public:
    enum class Renaming {
        Renamed,
        Occupied, ///< something else has that name
        Failed,
    };

    OwnedFile() = default;
    ~OwnedFile() { close(); }
    Q_DISABLE_COPY_MOVE(OwnedFile)

    /// Makes the file. False when something of that name exists or it can't be made. Its folder must exist.
    [[nodiscard]] bool create(const QString &path);
    [[nodiscard]] bool isOpen() const { return m_handle != NoHandle; }
    /// Writes all `count` bytes, or fails.
    [[nodiscard]] bool write(const char *bytes, qint64 count);
    /// By all writes together, one that failed halfway included.
    [[nodiscard]] qint64 writtenBytes() const { return m_writtenBytes; }
    /// Hands everything to the file system, some of which tell of a full disk only now.
    [[nodiscard]] bool flush();
    /// Moves the file to `target` in the same folder, where it is an ordinary visible one, and closes it.
    /// Something that stands there is replaced, in one step, if `mayReplace`, and never otherwise. A file
    /// that somebody else looks into just now is tried again for half a second. Unless `Renamed`, it can be
    /// renamed again, or removed.
    [[nodiscard]] Renaming rename(const QString &target, bool mayReplace);
    /// Closes and removes the file; one that was renamed stays. Tried again like a renaming.
    void remove();

    /// The system's number for what failed last.
    [[nodiscard]] unsigned long error() const { return m_error; }

private:
    static constexpr qintptr NoHandle = -1;

    void close();
    [[nodiscard]] bool fail();

    qintptr m_handle = NoHandle;
    QString m_path; // empty when there is no such file, or no longer
    unsigned long m_error = 0;
    qint64 m_writtenBytes = 0;
};

/// Removes the file at `path`, which an `OwnedFile` of the process number `owner` has left, unless a living
/// program holds it or it may be another user's. False when it is still there.
bool removeAbandoned(const QString &path, qint64 owner);

} // namespace Zandrove::Platform
