#pragma once

#include "platform/OwnedFile.h"

#include <QByteArrayView>
#include <QString>

namespace Zandrove {

/// A file that gets its own name only when it is whole: until then it stands beside its place under a
/// temporary name, hidden where the system has that. Whatever ends it before, the file goes; what a killed
/// program leaves is told by its name, and removed by removeAbandonedFiles.
class PartialFile final
{
public:
    using Renaming = Platform::OwnedFile::Renaming;

    PartialFile() = default;
    /// Removes the file, unless it has got its place.
    ~PartialFile() { remove(); }
    Q_DISABLE_COPY_MOVE(PartialFile)

    /// Begins a file that is to stand at `place`, in a folder that exists. What may stand there is not
    /// touched. A file begun before is removed.
    [[nodiscard]] bool create(const QString &place);
    /// False when not all could be written: the file is of no use then.
    [[nodiscard]] bool write(QByteArrayView bytes);
    /// By all writes together, one that failed halfway included.
    [[nodiscard]] qint64 writtenBytes() const { return m_file.writtenBytes(); }
    /// Gives the whole file its name `place`, in the same folder. What stands there is replaced, in one step,
    /// if `mayReplace`; otherwise it is `Occupied`, and can be tried at another place. Also `Failed` when the
    /// system has lost what was written.
    [[nodiscard]] Renaming moveTo(const QString &place, bool mayReplace = false);
    void remove() { m_file.remove(); }

    /// The system's number for what failed last; `Platform::errorText` has the words.
    [[nodiscard]] unsigned long error() const { return m_file.error(); }

    /// Whether a file of this name is, by its form, one that has not got its own yet.
    [[nodiscard]] static bool isTemporaryName(const QString &fileName);

private:
    Platform::OwnedFile m_file;
    bool m_isFlushed = false;
};

/// Removes what killed programs have left of their files in `folder`, not below it.
void removeAbandonedFiles(const QString &folder);

} // namespace Zandrove
