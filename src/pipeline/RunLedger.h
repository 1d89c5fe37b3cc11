#pragma once

#include "core/common/Records.h"
#include "pipeline/RunTally.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <chrono>
#include <optional>
#include <vector>

namespace Zandrove {

/// A file that the New PC's answer names because it didn't simply arrive.
struct AnsweredFile
{
    int taskId = -1;
    QString relativePath;
    QString error;                 ///< the New PC's words
    bool skipped = false;          ///< stood there before and was left alone
    std::optional<bool> identical; ///< of a skipped one, where the New PC compares
    QString fullVolume;            ///< of one that found no room: the volume, else empty
};

/// The New PC's answer to a request.
struct BatchAnswer
{
    int batchId = 0;
    bool success = true; ///< what the answer says of itself
    QList<AnsweredFile> files;
};

/// What became of one file on the New PC.
struct ReceivedItem
{
    QString relativePath;
    QString path; ///< where it lies or should lie, empty where it has no place
    ItemOutcome outcome = ItemOutcome::Arrived;
    QString reason;
    qint64 bytes = 0;
    QString fullVolume; ///< as in AnsweredFile
};

/// The outcome of every file, application and setting of one run on one PC, and so what its user is told. Fed
/// with what happens; knows no thread, no socket and no clock: times are milliseconds since any fixed moment.
///
/// On the Old PC an answer belongs to the first request of its number that is not answered yet. It covers the
/// files whose `FileEnd` left between the request answered before and its own: these have arrived unless it
/// names them. Nothing else makes a file arrive. A failure that an answer names counts for any file that has
/// left, whether or not the answer was asked for; of several reasons the first stays, and a failure on this
/// PC goes before every answer.
class RunLedger final
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::RunLedger)

public:
    using Time = std::chrono::milliseconds;

    RunLedger(int role, const QString &ownName, const QString &peerName, const QDateTime &startTime)
        : m_tally(role, ownName, peerName, startTime)
    {
    }

    // Old PC: the files. A task id that was not expected is ignored.

    /// The files of a list that is about to be sent, the run's first or a further one. Ids ascend within a
    /// list, and no two lists share one.
    void expect(const QList<FileTransferTask> &tasks);
    /// A ticked file or folder that got no task: counts as a failed file.
    void failedBeforehand(const QString &path, const QString &reason, qint64 bytes = 0);
    void failedHere(int taskId, const QString &reason);
    /// The file's `FileEnd` has left; `changed` when it says that the content is not to be kept.
    void fileEndSent(int taskId, bool changed);
    /// A request has left, which is to be answered within the timeout of its bytes.
    void answerRequested(int batchId, qint64 batchBytes, Time now);
    void answered(const BatchAnswer &answer);
    /// The peer could not answer until now, because the run was paused or bytes are still unsent: the time of
    /// every open request begins anew.
    void restartClocks(Time now);
    /// Stops to wait for requests whose time is over. A late answer still counts.
    void expire(Time now);
    /// When `expire` has something to do; nothing when no answer is waited for.
    [[nodiscard]] std::optional<Time> nextDeadline() const;
    /// The sender is through with all lists so far: what has neither failed nor a request waits no more.
    void everythingLeft();

    // New PC: the files.

    /// A further list of the Old PC's.
    void announced(int count, qint64 bytes);
    void received(const ReceivedItem &item);
    void setSavedFolders(const QMap<QString, QString> &paths, const QMap<QString, int> &counts,
                         const QMap<QString, QString> &samples)
    {
        m_tally.setSavedFolders(paths, counts, samples);
    }

    // Both: applications and settings.

    void expectItem(ItemKind kind, const QString &name);
    /// Settles the first pending item of that name; one that was not expected joins the run. `reason` may
    /// also stand with an item that arrived, where there is something to say of it.
    void settleItem(ItemKind kind, const QString &name, ItemOutcome outcome, const QString &reason = {});

    // Both: the end.

    /// Whether every file has its outcome, or can't get one any more.
    [[nodiscard]] bool isSettled() const { return m_open <= 0; }
    /// The run is over: what is pending is not confirmed. Nothing is taken in any more.
    void close(RunEnd end, const QDateTime &endTime);

    /// A copy that shares its lists.
    [[nodiscard]] const RunSummary &summary() const { return m_tally.summary(); }
    /// What got its outcome, or another one, since the last call; of what `close` settles only as much as the
    /// summary lists. Meant to be asked after each event: it grows until then.
    [[nodiscard]] QList<ItemResult> takeSettled() { return m_tally.takeSettled(); }

private:
    enum class TaskState : quint8 {
        Waiting,
        Left,    // its FileEnd has left
        Overdue, // no answer is waited for
        Arrived, // from here on it has its outcome
        WasThere,
        WasDifferent,
        FailedThere,
        FailedHere,
        NotConfirmed,
    };
    struct TaskRange // of one list
    {
        QList<FileTransferTask> tasks;
        int begin = 0; // index of the first in m_states
    };
    struct Request
    {
        int batchId = 0;
        Time timeout{};
        Time deadline{};
        bool overdue = false;
        QList<int> covers; // indexes
    };

    [[nodiscard]] static bool isOpen(TaskState state) { return state < TaskState::Arrived; }
    [[nodiscard]] static ItemOutcome outcomeOf(TaskState state);
    [[nodiscard]] bool isClosed() const { return m_tally.isClosed(); }
    [[nodiscard]] const FileTransferTask &taskAt(int index) const;
    [[nodiscard]] int indexOf(int taskId) const;
    [[nodiscard]] int indexOf(const AnsweredFile &file, const QList<int> &covered) const;

    [[nodiscard]] std::optional<QList<int>> takeCovered(int batchId);
    [[nodiscard]] bool takeNamed(const AnsweredFile &file, const QList<int> &covered, bool isAskedFor);
    void settleTask(int index, TaskState state, const QString &reason);
    void reviseAsFailed(int index, const QString &reason);
    void stopWaitingFor(int index);
    [[nodiscard]] QString notConfirmedText() const;
    [[nodiscard]] static QString notSentText();
    [[nodiscard]] static QString wasThereText(std::optional<bool> identical);

    RunTally m_tally;
    QList<TaskRange> m_ranges;
    std::vector<TaskState> m_states;
    QList<int> m_leftUnasked;  ///< indexes of files that left since the last request
    QList<Request> m_requests; ///< in the order in which they left
    qint64 m_open = 0;         ///< files that may still get an outcome
};

} // namespace Zandrove
