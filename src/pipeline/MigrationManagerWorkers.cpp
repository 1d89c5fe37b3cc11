// MigrationManager's workers: making, wiring, pausing and stopping them.

#include "peer/NetworkManager.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/MigrationManager.h"

#include <QDebug>
#include <QThread>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto StopDeadline = 3000ms;

} // namespace

void MigrationManager::setupConnections()
{
    qDebug() << "MigrationManager::setupConnections() - role:" << roleName(m_role);
    if (m_networkManager) {
        QObject::disconnect(m_networkManager, nullptr, this, nullptr);
        setNetworkManager(m_networkManager);
    }
    if (m_role == NewPC)
        createReceiver();
    else
        createSender();
}

void MigrationManager::createReceiver()
{
    qDebug() << "  Creating FileReceiverWorker, destRoot:" << m_destRoot;
    delete m_receiverWorker;
    m_receiverWorker = new FileReceiverWorker;
    m_receiverWorker->setDestinationRoot(m_destRoot);
    m_receiverWorker->setConflictPolicy(m_conflictConfig.policy);
    connect(m_receiverWorker, &FileReceiverWorker::inflowBelowMark, this,
            &MigrationManager::resumeReadingLink);
    startWorker(m_receiverWorker);
    connect(
        m_receiverWorker, &FileReceiverWorker::requestSendCommand, this,
        [this, run = m_run](int type, const QByteArray &payload) {
            if (run == m_run)
                onWorkerRequestSendCommand(type, payload);
        },
        Qt::QueuedConnection);
}

void MigrationManager::createSender()
{
    qDebug() << "  Creating FileSenderWorker";
    delete m_senderWorker;
    m_senderWorker = new FileSenderWorker;
    m_senderWorker->setConflictPolicy(m_conflictConfig.policy);
    // The socket belongs to the main thread and comes and goes there: the worker sees a counter that outlives
    // it.
    if (m_networkManager)
        m_senderWorker->setBufferProbe(
            [pending = m_networkManager->pendingBytes()] { return pending->load(); });
    startWorker(m_senderWorker);
    connect(
        m_senderWorker, &FileSenderWorker::requestSendCommand, this,
        [this, run = m_run, sender = QPointer(m_senderWorker)](int type, const QByteArray &payload) {
            const bool listBegins = type == int(Protocol::MessageType::TransferStart);
            if (run == m_run) {
                // A pause given before the list began was wiped out by its beginning.
                if (listBegins)
                    sender->setPaused(m_paused);
                onWorkerRequestSendCommand(type, payload);
            } else if (listBegins && sender) {
                sender->cancel(); // so was a cancel
            }
        },
        Qt::QueuedConnection);
}

/// Moves the worker to its thread and listens to it for as long as this run lasts.
template <typename Worker>
void MigrationManager::startWorker(Worker *worker)
{
    if (!m_workerThread) {
        m_workerThread = new QThread(this);
        m_workerThread->setObjectName(u"Worker"_s);
    }
    worker->moveToThread(m_workerThread);

    const auto ofThisRun = [this, run = m_run](auto slot) {
        return [this, run, slot](const auto &...arguments) {
            if (run == m_run)
                (this->*slot)(arguments...);
        };
    };
    connect(worker, &Worker::fileStarted, this, ofThisRun(&MigrationManager::onWorkerFileStarted));
    connect(worker, &Worker::fileProgress, this, ofThisRun(&MigrationManager::onWorkerFileProgress));
    connect(worker, &Worker::fileCompleted, this, ofThisRun(&MigrationManager::onWorkerFileCompleted));
    connect(worker, &Worker::fileFailed, this, ofThisRun(&MigrationManager::onWorkerFileFailed));
    connect(worker, &Worker::overallProgress, this, ofThisRun(&MigrationManager::onWorkerOverallProgress));
    connect(worker, &Worker::allCompleted, this, ofThisRun(&MigrationManager::onWorkerAllCompleted));
    connect(worker, &Worker::error, this, ofThisRun(&MigrationManager::onWorkerError));

    if (!m_workerThread->isRunning())
        m_workerThread->start();
}

void MigrationManager::stopWorkers()
{
    ++m_run;
    stopWork();
    if (m_senderWorker)
        QObject::disconnect(m_senderWorker, nullptr, nullptr, nullptr);
    if (m_receiverWorker)
        QObject::disconnect(m_receiverWorker, nullptr, nullptr, nullptr);
    if (m_workerThread) {
        if (endThread(*m_workerThread, "Worker thread did not stop in time, terminating...")) {
            delete m_senderWorker;
            delete m_receiverWorker;
        }
        delete m_workerThread;
    }
    m_senderWorker = nullptr;
    m_receiverWorker = nullptr;
    m_workerThread = nullptr;
    resumeReadingLink();
}

/// False when the thread had to be terminated: what it was working on is in no state to be touched then.
bool MigrationManager::endThread(QThread &thread, const char *warning)
{
    thread.requestInterruption();
    thread.quit();
    if (thread.wait(QDeadlineTimer(StopDeadline)))
        return true;
    qWarning() << warning;
    thread.terminate();
    thread.wait();
    return false;
}

void MigrationManager::invokeStartReceiving()
{
    if (m_receiverWorker)
        QMetaObject::invokeMethod(m_receiverWorker, &FileReceiverWorker::startReceiving,
                                  Qt::QueuedConnection);
}

void MigrationManager::setWorkersPaused(bool paused)
{
    m_paused = paused;
    // Directly: a queued call would wait behind the slot that is to be paused.
    if (m_senderWorker)
        m_senderWorker->setPaused(paused);
    if (m_receiverWorker)
        m_receiverWorker->setPaused(paused);
    if (paused)
        resumeReadingLink();
}

/// Directly, and for good: every run has workers of its own.
void MigrationManager::stopWork()
{
    if (m_senderWorker)
        m_senderWorker->stop();
    if (m_receiverWorker)
        m_receiverWorker->stop();
}

void MigrationManager::cancelWorkersQueued()
{
    if (m_senderWorker)
        QMetaObject::invokeMethod(m_senderWorker, &FileSenderWorker::cancel, Qt::QueuedConnection);
    if (m_receiverWorker)
        QMetaObject::invokeMethod(m_receiverWorker, &FileReceiverWorker::cancel, Qt::QueuedConnection);
}

/// While the disk is slower than the network the peer is made to wait, so that what has arrived stays
/// bounded. A paused run reads on: the peer's resume stands behind its data.
bool MigrationManager::mayReadLink() const
{
    if (m_completing && !m_paused)
        return false;
    return !m_migrating || m_paused || !m_receiverWorker ||
           m_receiverWorker->inflow() <= FileReceiverWorker::InflowMark;
}

void MigrationManager::resumeReadingLink()
{
    if (m_networkManager)
        m_networkManager->resumeReading();
}

} // namespace Zandrove
