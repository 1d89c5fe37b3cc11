#include "pipeline/WorkerThread.h"

#include "pipeline/Log.h"

#include <QDeadlineTimer>
#include <QThread>

#include <utility>

namespace Zandrove {

WorkerThread::WorkerThread(const QString &name, LastResort lastResort, QObject *parent)
    : m_thread(new QThread(parent))
    , m_lastResort(lastResort)
{
    m_thread->setObjectName(name);
}

void WorkerThread::carry(QObject *worker)
{
    m_workers.append(worker);
    worker->moveToThread(m_thread);
    if (!m_thread->isRunning())
        m_thread->start();
}

void WorkerThread::askToEnd()
{
    if (!m_thread)
        return;
    m_thread->requestInterruption();
    m_thread->quit();
}

void WorkerThread::askToEndBehind(QObject *worker)
{
    QMetaObject::invokeMethod(
        worker, [thread = m_thread] { thread->quit(); }, Qt::QueuedConnection);
}

void WorkerThread::end(std::chrono::milliseconds deadline)
{
    if (!m_thread)
        return;
    QThread *thread = std::exchange(m_thread, nullptr);
    thread->requestInterruption();
    thread->quit();
    if (thread->wait(QDeadlineTimer(deadline))) {
        qDeleteAll(std::exchange(m_workers, {}));
        delete thread;
        return;
    }
    if (m_lastResort == LastResort::LetRun) {
        qCWarning(logPipeline).noquote() << thread->objectName() << "thread did not stop in time, left alone";
        thread->setParent(nullptr); // with its parent it would be destroyed while it runs
        return;
    }
    qCWarning(logPipeline).noquote() << thread->objectName() << "thread did not stop in time, terminating...";
    thread->terminate();
    thread->wait();
    delete thread;
}

bool WorkerThread::isRunning() const
{
    return m_thread && m_thread->isRunning();
}

} // namespace Zandrove
