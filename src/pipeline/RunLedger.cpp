#include "pipeline/RunLedger.h"

#include "pipeline/BatchPlanner.h"

#include <algorithm>
#include <utility>

namespace Zandrove {

namespace {

constexpr qsizetype MaxPeerText = 500; // characters of a reason in the words of the peer

} // namespace

void RunLedger::expect(const QList<FileTransferTask> &tasks)
{
    if (isClosed() || tasks.isEmpty())
        return;
    m_ranges.append({tasks, int(m_states.size())});
    m_states.resize(m_states.size() + std::size_t(tasks.size()), TaskState::Waiting);
    qint64 bytes = 0;
    for (const FileTransferTask &task : tasks)
        bytes += task.fileSize;
    m_open += tasks.size();
    m_tally.expect(ItemKind::File, int(tasks.size()), bytes);
}

void RunLedger::failedBeforehand(const QString &path, const QString &reason, qint64 bytes)
{
    if (isClosed())
        return;
    m_tally.expect(ItemKind::File, 1, bytes);
    m_tally.settle({ItemKind::File, ItemOutcome::Failed, path, reason, bytes});
}

void RunLedger::failedHere(int taskId, const QString &reason)
{
    const int index = isClosed() ? -1 : indexOf(taskId);
    if (index < 0 || m_states[index] == TaskState::FailedHere)
        return;
    if (isOpen(m_states[index]))
        settleTask(index, TaskState::FailedHere, reason);
    else
        reviseAsFailed(index, reason);
}

void RunLedger::fileEndSent(int taskId, bool changed)
{
    const int index = isClosed() ? -1 : indexOf(taskId);
    if (index < 0 || m_states[index] != TaskState::Waiting)
        return;
    if (changed) {
        settleTask(index, TaskState::FailedHere, tr("changed while it was sent"));
        return;
    }
    m_states[index] = TaskState::Left;
    m_leftUnasked.append(index);
}

void RunLedger::answerRequested(int batchId, qint64 batchBytes, Time now)
{
    if (isClosed())
        return;
    const Time timeout = batchAckTimeout(batchBytes);
    m_requests.append({batchId, timeout, now + timeout, false, std::exchange(m_leftUnasked, {})});
}

void RunLedger::answered(const BatchAnswer &answer)
{
    if (isClosed())
        return;
    const std::optional<QList<int>> covered = takeCovered(answer.batchId);
    bool namesOurs = false;
    for (const AnsweredFile &file : answer.files)
        namesOurs = takeNamed(file, covered.value_or(QList<int>()), covered.has_value()) || namesOurs;
    if (!covered)
        return;
    // Something failed and nobody can say what: then nothing of it is known to have arrived.
    const bool isVague = !answer.success && !namesOurs;
    for (const int index : *covered) {
        if (isOpen(m_states[index]))
            settleTask(index, isVague ? TaskState::NotConfirmed : TaskState::Arrived,
                       isVague ? notConfirmedText() : QString());
    }
}

/// The files that an answer covers, and ends its request. Nothing where no request has its number. A request
/// that was never answered makes way: the answer to the next one speaks of its files too.
std::optional<QList<int>> RunLedger::takeCovered(int batchId)
{
    const auto answered =
        std::find_if(m_requests.cbegin(), m_requests.cend(),
                     [batchId](const Request &request) { return request.batchId == batchId; });
    if (answered == m_requests.cend())
        return std::nullopt;
    QList<int> covered;
    for (auto request = m_requests.cbegin(); request <= answered; ++request)
        covered += request->covers;
    m_requests.erase(m_requests.cbegin(), answered + 1);
    return covered;
}

/// Believes what an answer says of one file. Returns whether it is a file that has left from here.
bool RunLedger::takeNamed(const AnsweredFile &file, const QList<int> &covered, bool isAskedFor)
{
    const int index = indexOf(file, covered);
    if (index < 0 || m_states[index] == TaskState::Waiting)
        return false;
    if (!isOpen(m_states[index]))
        return true;
    if (!file.skipped) {
        const QString reason = file.error.left(MaxPeerText);
        settleTask(index, TaskState::FailedThere,
                   reason.isEmpty() ? tr("%1 does not say why").arg(summary().peerName) : reason);
        m_tally.noteFullVolume(file.fullVolume, summary().peerName, taskAt(index).fileSize);
    } else if (!file.identical.value_or(true)) {
        settleTask(index, TaskState::WasDifferent, wasThereText(file.identical));
    } else if (isAskedFor) {
        settleTask(index, TaskState::WasThere, wasThereText(file.identical));
    }
    return true;
}

void RunLedger::restartClocks(Time now)
{
    for (Request &request : m_requests)
        request.deadline = now + request.timeout;
}

void RunLedger::expire(Time now)
{
    for (Request &request : m_requests) {
        if (request.overdue || request.deadline > now)
            continue;
        request.overdue = true;
        for (const int index : std::as_const(request.covers))
            stopWaitingFor(index);
    }
}

std::optional<RunLedger::Time> RunLedger::nextDeadline() const
{
    std::optional<Time> next;
    for (const Request &request : m_requests) {
        if (!request.overdue)
            next = std::min(next.value_or(request.deadline), request.deadline);
    }
    return next;
}

void RunLedger::everythingLeft()
{
    if (isClosed())
        return;
    for (const int index : std::exchange(m_leftUnasked, {}))
        stopWaitingFor(index);
    const auto first = std::find(m_states.cbegin(), m_states.cend(), TaskState::Waiting);
    for (auto index = int(first - m_states.cbegin()); index < int(m_states.size()); ++index) {
        if (m_states[index] == TaskState::Waiting)
            settleTask(index, TaskState::NotConfirmed, notSentText());
    }
}

void RunLedger::announced(int count, qint64 bytes)
{
    if (isClosed())
        return;
    m_open += count;
    m_tally.expect(ItemKind::File, count, bytes);
}

void RunLedger::received(const ReceivedItem &item)
{
    if (isClosed() || item.outcome == ItemOutcome::Pending)
        return;
    ItemResult result{ItemKind::File, item.outcome, item.path.isEmpty() ? item.relativePath : item.path,
                      item.reason, item.bytes};
    if (result.reason.isEmpty() && item.outcome == ItemOutcome::WasThere)
        result.reason = wasThereText(true);
    if (result.reason.isEmpty() && item.outcome == ItemOutcome::WasDifferent)
        result.reason = wasThereText(false);
    --m_open;
    m_tally.noteFullVolume(item.fullVolume, summary().ownName, item.bytes);
    m_tally.settle(result);
}

void RunLedger::expectItem(ItemKind kind, const QString &name)
{
    if (!isClosed())
        m_tally.expectNamed(kind, name);
}

void RunLedger::settleItem(ItemKind kind, const QString &name, ItemOutcome outcome, const QString &reason)
{
    if (!isClosed() && outcome != ItemOutcome::Pending)
        m_tally.settleNamed({kind, outcome, name, reason, 0});
}

void RunLedger::close(RunEnd end, const QDateTime &endTime)
{
    if (isClosed())
        return;
    for (int index = 0; index < int(m_states.size()); ++index) {
        if (!isOpen(m_states[index]))
            continue;
        const bool isListed = !m_tally.isListFull();
        settleTask(index, TaskState::NotConfirmed,
                   m_states[index] == TaskState::Waiting ? notSentText() : notConfirmedText());
        if (!isListed)
            m_tally.dropLastSettled();
    }
    m_tally.close(end, endTime, notSentText());
    m_open = 0;
    m_ranges.clear();
    m_states = {};
    m_requests.clear();
    m_leftUnasked.clear();
}

const FileTransferTask &RunLedger::taskAt(int index) const
{
    const auto behind = std::upper_bound(m_ranges.cbegin(), m_ranges.cend(), index,
                                         [](int at, const TaskRange &range) { return at < range.begin; });
    const TaskRange &range = *std::prev(behind);
    return range.tasks.at(index - range.begin);
}

int RunLedger::indexOf(int taskId) const
{
    for (const TaskRange &range : m_ranges) {
        const QList<FileTransferTask> &tasks = range.tasks;
        if (taskId < tasks.constFirst().taskId || taskId > tasks.constLast().taskId)
            continue;
        const auto task =
            std::lower_bound(tasks.cbegin(), tasks.cend(), taskId,
                             [](const FileTransferTask &left, int id) { return left.taskId < id; });
        if (task->taskId == taskId)
            return range.begin + int(task - tasks.cbegin());
    }
    return -1;
}

/// The file that an answer means: by its number, or by its path where the number is another file's.
int RunLedger::indexOf(const AnsweredFile &file, const QList<int> &covered) const
{
    const int index = indexOf(file.taskId);
    if (index >= 0 && taskAt(index).relativePath == file.relativePath)
        return index;
    const auto named = std::find_if(covered.cbegin(), covered.cend(), [&](int candidate) {
        return taskAt(candidate).relativePath == file.relativePath;
    });
    return named == covered.cend() ? -1 : *named;
}

void RunLedger::settleTask(int index, TaskState state, const QString &reason)
{
    if (m_states[index] == TaskState::Waiting || m_states[index] == TaskState::Left)
        --m_open;
    m_states[index] = state;
    const FileTransferTask &task = taskAt(index);
    m_tally.settle({ItemKind::File, outcomeOf(state), task.sourcePath, reason, task.fileSize});
}

/// A failure on this PC takes the place of what an answer has said.
void RunLedger::reviseAsFailed(int index, const QString &reason)
{
    const FileTransferTask &task = taskAt(index);
    const ItemOutcome before = outcomeOf(std::exchange(m_states[index], TaskState::FailedHere));
    m_tally.takeBack({ItemKind::File, before, task.sourcePath, {}, task.fileSize});
    m_tally.settle({ItemKind::File, ItemOutcome::Failed, task.sourcePath, reason, task.fileSize});
}

void RunLedger::stopWaitingFor(int index)
{
    if (m_states[index] != TaskState::Left)
        return;
    m_states[index] = TaskState::Overdue;
    --m_open;
}

ItemOutcome RunLedger::outcomeOf(TaskState state)
{
    switch (state) {
    case TaskState::Arrived:
        return ItemOutcome::Arrived;
    case TaskState::WasThere:
        return ItemOutcome::WasThere;
    case TaskState::WasDifferent:
        return ItemOutcome::WasDifferent;
    case TaskState::FailedThere:
    case TaskState::FailedHere:
        return ItemOutcome::Failed;
    case TaskState::NotConfirmed:
        return ItemOutcome::NotConfirmed;
    default:
        return ItemOutcome::Pending;
    }
}

QString RunLedger::notConfirmedText() const
{
    return tr("sent, but %1 has not confirmed that it arrived").arg(summary().peerName);
}

QString RunLedger::notSentText()
{
    return tr("not moved: the transfer ended before its turn");
}

QString RunLedger::wasThereText(std::optional<bool> identical)
{
    if (!identical)
        return tr("there already");
    return *identical ? tr("there already, identical")
                      : tr("there already, and different: the one from the Old PC was not moved");
}

} // namespace Zandrove
