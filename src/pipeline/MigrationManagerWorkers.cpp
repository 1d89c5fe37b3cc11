// MigrationManager's workers: making, wiring, pausing and stopping them.

#include "appmigration/AppMigrator.h"
#include "peer/NetworkManager.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/FileSenderWorker.h"
#include "pipeline/Log.h"
#include "pipeline/MigrationManager.h"
#include "settings/SettingMigrator.h"

#include <QThread>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

namespace {

constexpr auto StopDeadline = 3000ms;

} // namespace

/// A slot that is called while this run lasts.
template <typename... Arguments>
auto MigrationManager::ofThisRun(void (MigrationManager::*slot)(Arguments...))
{
    return [this, run = m_run, slot](Arguments... arguments) {
        if (run == m_run)
            (this->*slot)(arguments...);
    };
}

void MigrationManager::setupConnections()
{
    qCDebug(logPipeline) << "MigrationManager::setupConnections() - role:" << roleName(m_role);
    if (m_networkManager) {
        QObject::disconnect(m_networkManager, nullptr, this, nullptr);
        setNetworkManager(m_networkManager);
    }
    if (m_role == NewPC)
        createReceiver();
    else
        createSender();
    createAppMigrator();
    createSettingMigrator();
}

void MigrationManager::createReceiver()
{
    qCDebug(logPipeline) << "  Creating FileReceiverWorker, destRoot:" << m_destRoot;
    delete m_receiverWorker;
    m_receiverWorker = new FileReceiverWorker;
    m_receiverWorker->setDestinationRoot(m_destRoot);
    m_receiverWorker->setConflictPolicy(m_conflictConfig.policy);
    connect(m_receiverWorker, &FileReceiverWorker::inflowBelowMark, this,
            &MigrationManager::resumeReadingLink);
    startWorker(m_receiverWorker);
    connect(m_receiverWorker, &FileReceiverWorker::requestSendCommand, this,
            ofThisRun(&MigrationManager::onWorkerRequestSendCommand), Qt::QueuedConnection);
}

void MigrationManager::createSender()
{
    qCDebug(logPipeline) << "  Creating FileSenderWorker";
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

void MigrationManager::createAppMigrator()
{
    m_appMigrator = new AppMigrator;
    connect(m_appMigrator, &AppMigrator::appStarted, this, ofThisRun(&MigrationManager::onAppStarted));
    connect(m_appMigrator, &AppMigrator::appProgress, this, ofThisRun(&MigrationManager::onAppProgress));
    connect(m_appMigrator, &AppMigrator::appFinished, this, ofThisRun(&MigrationManager::onAppFinished));
    connect(m_appMigrator, &AppMigrator::finished, this,
            ofThisRun(&MigrationManager::onAppMigrationFinished));
    connect(m_appMigrator, &AppMigrator::requestSendCommand, this,
            ofThisRun(&MigrationManager::onWorkerRequestSendCommand));
    connect(m_appMigrator, &AppMigrator::requestSendFile, this,
            ofThisRun(&MigrationManager::onAppRequestSendFile));
    startOn(m_appThread, u"Applications"_s, m_appMigrator);
}

void MigrationManager::createSettingMigrator()
{
    m_settingsBegun = false;
    m_settingMigrator = new SettingMigrator;
    connect(m_settingMigrator, &SettingMigrator::settingStarted, this,
            ofThisRun(&MigrationManager::onSettingStarted));
    connect(m_settingMigrator, &SettingMigrator::settingProgress, this,
            ofThisRun(&MigrationManager::onSettingProgress));
    connect(m_settingMigrator, &SettingMigrator::settingFinished, this,
            ofThisRun(&MigrationManager::onSettingFinished));
    connect(m_settingMigrator, &SettingMigrator::finished, this,
            ofThisRun(&MigrationManager::onSettingMigrationFinished));
    connect(m_settingMigrator, &SettingMigrator::requestSendCommand, this,
            ofThisRun(&MigrationManager::onWorkerRequestSendCommand), Qt::QueuedConnection);
    startOn(m_settingThread, u"Settings"_s, m_settingMigrator);
}

void MigrationManager::startOn(QThread *&thread, const QString &name, QObject *worker)
{
    if (!thread) {
        thread = new QThread(this);
        thread->setObjectName(name);
    }
    worker->moveToThread(thread);
    if (!thread->isRunning())
        thread->start();
}

/// Listens to the worker for as long as this run lasts, and moves it to its thread.
template <typename Worker>
void MigrationManager::startWorker(Worker *worker)
{
    connect(worker, &Worker::fileStarted, this, ofThisRun(&MigrationManager::onWorkerFileStarted));
    connect(worker, &Worker::fileProgress, this, ofThisRun(&MigrationManager::onWorkerFileProgress));
    connect(worker, &Worker::fileCompleted, this, ofThisRun(&MigrationManager::onWorkerFileCompleted));
    connect(worker, &Worker::fileFailed, this, ofThisRun(&MigrationManager::onWorkerFileFailed));
    connect(worker, &Worker::overallProgress, this, ofThisRun(&MigrationManager::onWorkerOverallProgress));
    connect(worker, &Worker::allCompleted, this, ofThisRun(&MigrationManager::onWorkerAllCompleted));
    connect(worker, &Worker::error, this, ofThisRun(&MigrationManager::onWorkerError));
    startOn(m_workerThread, u"Worker"_s, worker);
}

void MigrationManager::stopWorkers()
{
    finishSettings();
    ++m_run;
    stopWork();
    const std::initializer_list<QObject *> workers = {m_senderWorker, m_receiverWorker, m_appMigrator,
                                                      m_settingMigrator};
    for (QObject *worker : workers) {
        if (worker)
            worker->disconnect();
    }
    // All of them at first, so that only the slowest is waited for.
    for (QThread *thread : {m_workerThread, m_appThread, m_settingThread}) {
        if (thread) {
            thread->requestInterruption();
            thread->quit();
        }
    }
    endThread(m_workerThread, "Worker thread did not stop in time, terminating...", m_senderWorker,
              m_receiverWorker);
    endThread(m_appThread, "App thread did not stop in time, terminating...", m_appMigrator);
    endThread(m_settingThread, "Setting thread did not stop in time, terminating...", m_settingMigrator);
    resumeReadingLink();
}

/// The settings of a run that is complete are still applied: they have arrived, and the peer was told so.
void MigrationManager::finishSettings()
{
    if (!m_settingsOwed || !m_settingThread)
        return;
    m_settingsOwed = false;
    QMetaObject::invokeMethod(
        m_settingMigrator, [thread = m_settingThread] { thread->quit(); }, Qt::QueuedConnection);
    m_settingThread->wait(QDeadlineTimer(SettingsDeadline));
}

/// Waits for the end of a thread that was told to quit, and deletes the workers that live on it. What a
/// thread that had to be terminated was working on is in no state to be touched, so it stays.
template <typename... Workers>
void MigrationManager::endThread(QThread *&thread, const char *warning, Workers *&...workers)
{
    if (thread) {
        if (thread->wait(QDeadlineTimer(StopDeadline))) {
            (delete workers, ...);
        } else {
            qCWarning(logPipeline) << warning;
            thread->terminate();
            thread->wait();
        }
        delete thread;
    }
    thread = nullptr;
    ((workers = nullptr), ...);
}

void MigrationManager::invokeStartReceiving()
{
    if (m_receiverWorker)
        QMetaObject::invokeMethod(m_receiverWorker, &FileReceiverWorker::startReceiving,
                                  Qt::QueuedConnection);
}

void MigrationManager::startEverythingReceiving()
{
    invokeStartReceiving();
    beginReceivingSettings();
    QMetaObject::invokeMethod(m_appMigrator, &AppMigrator::startReceiving, Qt::QueuedConnection);
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
    if (m_appMigrator)
        m_appMigrator->stop();
    if (m_settingMigrator)
        m_settingMigrator->stop();
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
    if ((m_completing && !m_paused) || (isSettling() && !m_deferred.isEmpty()))
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
