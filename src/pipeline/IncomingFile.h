#pragma once

#include "pipeline/FileChecksum.h"
#include "pipeline/ReceivedFile.h"
#include "pipeline/StandingFile.h"
#include "support/PartialFile.h"

#include <QByteArray>
#include <QSet>

#include <functional>

namespace Zandrove {

/// The file that is being received, one after the other: from its header, which finds its place, over its
/// bytes to its end, which gives it its name. Until then it has a temporary one. What stands in its place is
/// replaced by nothing but the conflict rule's overwriting; where the rule leaves it alone, the file is not
/// written but compared with it.
class IncomingFile final
{
public:
    enum class State {
        None,     ///< no file is on its way
        Writing,  ///< it is being written
        Standing, ///< something stands in its place and stays there
        Failed,   ///< for its `problem`; nothing of it is on disk, and what still comes of it is ignored
    };
    enum class Problem {
        None,
        CannotCreate, ///< told by `systemText`, or a path that leads out of its folder
        WriteError,   ///< told by `systemText`
        Mismatch,     ///< what has come is not what was sent
        Changed,      ///< on the other PC, while it was sent
        Unfinished,   ///< its end never came
    };

    /// A `ConflictPolicy`.
    void setConflictPolicy(int policy) { m_policy = policy; }
    /// Asked in long work; by default never.
    void setCancelTest(std::function<bool()> isCancelled) { m_isCancelled = std::move(isCancelled); }
    /// A run begins: leftovers of earlier ones are looked for once in each folder.
    void forgetFolders() { m_tidyFolders.clear(); }

    /// Begins the file with task, paths and size of `announced`. Results
    /// in `Writing`, `Standing` or `Failed`.
    State begin(const ReceivedFile &announced);
    /// The next bytes of the file. False when they can't be written: the file has `Failed` by that.
    [[nodiscard]] bool take(QByteArrayView bytes);
    /// All bytes have come: the file gets its name if they sum up to `checksum` and it hasn't `changed`.
    /// False when it failed. What became of it stands in the record; afterwards the state is `None`.
    [[nodiscard]] bool end(quint32 checksum, bool changed);
    /// Ends a file that is still on its way as `Unfinished`. False when there is none.
    bool abandon();

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] Problem problem() const { return m_problem; }
    /// The system's words for the problem; empty where it has none.
    [[nodiscard]] const QString &systemText() const { return m_systemText; }
    /// The file begun last, without its reason; the outcome holds once it has ended or failed.
    [[nodiscard]] const ReceivedFile &record() const { return m_file; }
    /// After its end: the file that stands in its place has the same content.
    [[nodiscard]] bool isIdentical() const { return m_file.outcome == ItemOutcome::WasThere; }
    /// Bytes of it that have been written or are to be.
    [[nodiscard]] qint64 receivedBytes() const { return m_received; }

private:
    [[nodiscard]] State findPlace();
    [[nodiscard]] State create();
    [[nodiscard]] bool flush();
    [[nodiscard]] bool place();
    [[nodiscard]] bool placeElsewhere();
    void judgeStanding(quint32 checksum);
    bool fail(Problem problem, const QString &systemText = {});
    bool failByDisk(Problem problem, unsigned long code);

    int m_policy = 0;
    std::function<bool()> m_isCancelled = [] { return false; };
    QSet<QString> m_tidyFolders;

    State m_state = State::None;
    Problem m_problem = Problem::None;
    QString m_systemText;
    ReceivedFile m_file;
    QString m_wanted; // the place before the conflict rule
    PartialFile m_partial;
    StandingFile m_standing;
    FileChecksum m_checksum;
    qint64 m_received = 0;
    QByteArray m_buffer; // keeps its memory from file to file
};

/// The path to write when something exists at `path`; empty when it is to be left alone. Renaming tries
/// "base_1.suffix" up to 999 and stays at the last. Overwriting, which replaces what exists once the file is
/// whole, and any other policy give the same path.
[[nodiscard]] QString resolveConflict(const QString &path, int policy);

} // namespace Zandrove
