#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <chrono>

class QThread;

namespace Zandrove {

/// A thread with an event loop, and the workers that live on it. It begins with its first worker and ends
/// with this object, which waits for that at most for a deadline. The workers are deleted once the thread has
/// ended, and only then.
class WorkerThread final
{
public:
    /// What becomes of a thread that does not end in time.
    enum class LastResort {
        Terminate, ///< it is ended by force; what it was working on is in no state to be touched, and stays
        LetRun,    ///< it is left to itself for the rest of the process
    };

    static constexpr std::chrono::milliseconds StopDeadline{3000};

    /// `parent` shows the thread among its children, under `name`.
    WorkerThread(const QString &name, LastResort lastResort, QObject *parent);
    ~WorkerThread() { end(StopDeadline); }
    WorkerThread(const WorkerThread &) = delete;
    WorkerThread &operator=(const WorkerThread &) = delete;

    /// Takes `worker` over and moves it to the thread, which starts if it hasn't yet.
    void carry(QObject *worker);

    /// Asks the thread to end: its interruption is requested, and its event loop quits
    /// behind the call in work.
    void askToEnd();
    /// The same behind everything that `worker` was given so far, without an interruption.
    void askToEndBehind(QObject *worker);
    /// Asks and waits. Returns at once when the thread has ended or never began.
    void end(std::chrono::milliseconds deadline);

    /// Whether the thread is still at work.
    [[nodiscard]] bool isRunning() const;
    /// For signals about the thread itself.
    [[nodiscard]] QThread *thread() const { return m_thread; }

private:
    QThread *m_thread; // child of the parent
    LastResort m_lastResort;
    QList<QObject *> m_workers;
};

} // namespace Zandrove
