#include "pipeline/ReceivingRun.h"

#include "appmigration/AppMessages.h"
#include "appmigration/AppMigrator.h"
#include "pipeline/FileReceiverWorker.h"
#include "pipeline/Log.h"
#include "pipeline/ReceivedApps.h"
#include "settings/SettingMigrator.h"

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Zandrove {

using Protocol::MessageType;

namespace {

constexpr auto AppEndDelay = 300ms;

} // namespace

ReceivingRun::ReceivingRun(RunLink link, const Destination &destination, QObject *parent)
    : MigrationRun(NewPC, std::move(link), parent)
    , m_receiver(new FileReceiverWorker)
    , m_apps(new ReceivedApps(m_appThread, this))
{
    qCDebug(logPipeline) << "  Creating FileReceiverWorker, destRoot:" << destination.root;
    m_receiver->setDestinationRoot(destination.root);
    m_receiver->setConflictPolicy(destination.conflictPolicy);
    connect(m_receiver, &FileReceiverWorker::inflowBelowMark, this, &ReceivingRun::stateChanged);
    connect(m_receiver, &FileReceiverWorker::taskSettled, this, &ReceivingRun::onReceived);
    connect(m_receiver, &FileReceiverWorker::spaceShort, this, &ReceivingRun::spaceShort);
    startFileWorker(m_receiver);
    wireApps();
    connect(this, &MigrationRun::settingOutcome, this,
            [this](const QString &name, bool success, const QString &error) {
                m_ledger.settleItem(ItemKind::Setting, name,
                                    success ? ItemOutcome::Arrived : ItemOutcome::Failed, error);
                tellSettled();
            });
    m_settingsBound.setSingleShot(true);
    connect(&m_settingsBound, &QTimer::timeout, this, [this] {
        m_settings = Settings::Through;
        onSettingsOver();
    });
}

void ReceivingRun::wireApps()
{
    connect(m_apps, &ReceivedApps::installProgress, this, &ReceivingRun::appInstallProgress);
    connect(m_apps, &ReceivedApps::installProgress, this, [this](const QString &name, int percent) {
        m_installing = {name, percent};
        Q_EMIT installing(name, percent);
    });
    connect(m_apps, &ReceivedApps::installFinished, this, &ReceivingRun::appInstallFinished);
    connect(m_apps, &ReceivedApps::installed, this,
            [this](const QString &name, bool success, const QString &error) {
                m_installing = {};
                ++(success ? m_report.appsSuccess : m_report.appsFailed);
                m_ledger.settleItem(ItemKind::Application, name,
                                    success ? ItemOutcome::Arrived : ItemOutcome::Failed, error);
                tellSettled();
                Q_EMIT appOutcome(name, success, error);
            });
    connect(m_apps, &ReceivedApps::cleanedUp, this, &ReceivingRun::onAppsThrough);
}

void ReceivingRun::onReceived(const ReceivedFile &file)
{
    m_ledger.received(
        {file.relativePath, file.destination, file.outcome, file.reason, file.bytes, file.fullVolume});
    if (file.outcome == ItemOutcome::Failed)
        m_apps->noteMissing(file.relativePath);
    tellSettled();
}

/// What had arrived of a lost link is worked off: whole files get their names, an application that is whole
/// is installed. The others are not: half an application is worse than none. A run of which all has arrived
/// goes on to its end as if the link stood.
void ReceivingRun::end(RunEnd how)
{
    if (how != RunEnd::LinkLost || !m_begun) {
        MigrationRun::end(how);
        return;
    }
    if (!isOn() || std::exchange(m_linkLost, true))
        return;
    if (isPaused()) // nobody is left to resume it
        setPaused(false);
    if (m_workingOff)
        return;
    if (isApplyingSettings()) {
        m_settings = Settings::AllHere;
        boundSettings();
        QMetaObject::invokeMethod(
            m_settingMigrator,
            [migrator = m_settingMigrator, reason = tr("the link was lost")] {
                migrator->giveUpReceiving(reason);
                migrator->onSettingComplete({});
            },
            Qt::QueuedConnection);
    }
    behindReceiver([this] { m_apps->cleanUp(); });
}

ReceivingRun::~ReceivingRun()
{
    waitForThreads();
}

void ReceivingRun::begin()
{
    tellReceiver([](FileReceiverWorker &receiver) { receiver.startReceiving(); });
    beginReceivingSettings();
    QMetaObject::invokeMethod(m_appMigrator, &AppMigrator::startReceiving, Qt::QueuedConnection);
}

void ReceivingRun::handle(MessageType type, const QByteArray &payload)
{
    if (!m_begun && type != MessageType::TransferReset && type != MessageType::TransferCancel) {
        m_begun = true;
        m_linkNumber = m_link.number();
    }
    MigrationRun::handle(type, payload);
}

RunState ReceivingRun::state() const
{
    if (isOn())
        return m_workingOff || m_linkLost ? RunState::WorkingOff : RunState::On;
    return isApplyingSettings() ? RunState::Settling : RunState::None;
}

/// While the disk is slower than the network the peer is made to wait, so that what has arrived stays
/// bounded. A paused run reads on: the peer's resume stands behind its data.
bool ReceivingRun::mayReadLink() const
{
    return !isOn() || isPaused() || m_receiver->inflow() <= FileReceiverWorker::InflowMark;
}

bool ReceivingRun::isApplyingSettings() const
{
    return (isOn() || outlivedBySettings()) &&
           (m_settings == Settings::Arriving || m_settings == Settings::AllHere);
}

/// They have arrived, and the peer was told so: also where it forgot to close them.
bool ReceivingRun::owesSettings() const
{
    return m_settings == Settings::Arriving || m_settings == Settings::AllHere ||
           m_settings == Settings::Unclosed;
}

/// A program of the system that never ends must not keep the peer out for good.
void ReceivingRun::boundSettings()
{
    if (!m_settingsBound.isActive())
        m_settingsBound.start(SettingsDeadline);
}

void ReceivingRun::pauseWorkers(bool paused)
{
    m_receiver->setPaused(paused);
}

void ReceivingRun::stopWorkers()
{
    m_workingOff = m_linkLost = false;
    if (!m_installing.first.isEmpty())
        m_ledger.settleItem(ItemKind::Application, m_installing.first, ItemOutcome::Failed,
                            tr("its installation was stopped at %1 %").arg(m_installing.second));
    m_receiver->disconnect();
    m_receiver->stop();
    m_apps->disconnect();
    MigrationRun::stopWorkers();
}

void ReceivingRun::tellReceiver(std::function<void(FileReceiverWorker &)> what)
{
    QMetaObject::invokeMethod(
        m_receiver, [receiver = m_receiver, what = std::move(what)] { what(*receiver); },
        Qt::QueuedConnection);
}

/// Acts on this thread once the receiver has worked off all that it was given so far. There and back by two
/// queues: this thread does not wait, and a paused receiver comes to it when it goes on. The run outlives the
/// receiver's thread.
void ReceivingRun::behindReceiver(std::function<void()> action)
{
    tellReceiver([this, action = std::move(action)](FileReceiverWorker &) {
        QMetaObject::invokeMethod(
            this,
            [this, action] {
                if (isOn())
                    action();
            },
            Qt::QueuedConnection);
    });
}

void ReceivingRun::onTransferStart(const QByteArray &payload)
{
    MigrationRun::onTransferStart(payload);
    const auto announced = TransferMessages::Start::fromPayload(payload);
    m_ledger.announced(announced.fileCount, announced.totalSize);
    tellReceiver([start = announced](FileReceiverWorker &receiver) {
        receiver.setTotalInfo(start.fileCount, start.totalSize);
    });
}

void ReceivingRun::onFileHeader(const QByteArray &payload)
{
    qCDebug(logPipeline) << ">>> FileHeader CASE ENTERED! payload:" << payload.size();
    const auto header = TransferMessages::Header::fromPayload(payload);
    qCDebug(logPipeline) << ">>> FileHeader:" << header.relativePath << header.fileSize << header.taskId;
    m_apps->countFileIn(header.relativePath);
    tellReceiver([header](FileReceiverWorker &receiver) {
        receiver.onFileHeader(header.relativePath, header.fileSize, 0, header.taskId);
    });
}

void ReceivingRun::onFileData(const QByteArray &payload)
{
    m_receiver->addInflow(payload.size());
    tellReceiver([payload](FileReceiverWorker &receiver) { receiver.onFileData(payload); });
}

void ReceivingRun::onFileEnd(const QByteArray &payload)
{
    const auto end = TransferMessages::End::fromPayload(payload);
    tellReceiver([end](FileReceiverWorker &receiver) {
        receiver.onFileEnd(end.relativePath, end.checksum, end.taskId, end.changed);
    });
    const QString completeApp = m_apps->countFileOut(end.relativePath);
    if (completeApp.isEmpty())
        return;
    // Its last file is still on its way to the disk.
    behindReceiver([this, completeApp] {
        if (m_apps->isComplete(completeApp))
            m_apps->tryInstallApp(completeApp);
    });
}

void ReceivingRun::onAnswerRequest(const TransferMessages::Ack &request)
{
    qCDebug(logPipeline) << ">>> Calling onBatchAckRequest: batchId=" << request.batchId
                         << "startTaskId=" << request.startTaskId << "endTaskId=" << request.endTaskId;
    // Queued, so that the answer stands behind all chunks of the batch.
    tellReceiver([request](FileReceiverWorker &receiver) {
        receiver.onBatchAckRequest(request.batchId, request.startTaskId, request.endTaskId);
    });
    qCDebug(logPipeline) << ">>> onBatchAckRequest invoked!";
}

void ReceivingRun::onTransferComplete()
{
    qCDebug(logPipeline) << "Receiver: Marking all phases as done";
    if (m_settings == Settings::Arriving)
        m_settings = Settings::Unclosed;
    // Whoever has ended its run has nothing left to resume.
    if (m_pausedByPeer && isPaused())
        handle(MessageType::TransferResume, {});
    qCDebug(logPipeline) << "Calling receiverWorker->onTransferComplete()";
    m_workingOff = true;
    tellReceiver([](FileReceiverWorker &receiver) { receiver.onTransferComplete(); });
}

void ReceivingRun::onFilesThrough(int success, int failed, int skipped, qlonglong bytes)
{
    qCDebug(logPipeline) << "[Serial] MigrationManager::onWorkerAllCompleted - success:" << success
                         << "failed:" << failed << "skipped:" << skipped << "bytes:" << bytes
                         << "sendingAppPhase:" << false;
    m_report.filesSuccess = success;
    m_report.filesFailed = failed;
    m_report.filesSkipped = skipped;
    m_report.totalBytes = bytes;
    m_apps->forceInstallAll();
    m_apps->cleanUp();
}

void ReceivingRun::onAppsThrough()
{
    const bool isBroken = m_linkLost && !m_workingOff;
    if (isBroken && isApplyingSettings())
        return;
    const ReceivedFolders &received = m_receiver->receivedFolders();
    m_ledger.setSavedFolders(received.paths, received.counts, received.samples());
    if (!isBroken)
        logAllCompletedCheck(true, true, true, NewPC);
    finish(isBroken ? RunEnd::LinkLost : RunEnd::Complete);
}

MigrationReport ReceivingRun::buildReport() const
{
    MigrationReport report = MigrationRun::buildReport();
    const ReceivedFolders &received = m_receiver->receivedFolders();
    report.savedFolderPaths = received.paths;
    report.savedFolderCounts = received.counts;
    report.savedFolderSamples = received.samples();
    return report;
}

void ReceivingRun::onAppStart(const QByteArray &payload)
{
    const QString name = m_apps->begin(payload);
    if (name.isEmpty())
        return;
    m_ledger.expectItem(ItemKind::Application, name);
    QMetaObject::invokeMethod(
        m_appMigrator, [migrator = m_appMigrator, payload] { migrator->onAppPackageReceived(payload); },
        Qt::QueuedConnection);
}

void ReceivingRun::onAppEnd(const QByteArray &payload)
{
    const QString name = readAppEnd(payload);
    qCDebug(logPipeline) << "Received AppEnd for:" << name;
    QTimer::singleShot(AppEndDelay, this, [this, name] {
        if (isOn())
            behindReceiver([this, name] { processAppEnd(name); });
    });
}

void ReceivingRun::processAppEnd(const QString &appName)
{
    qCDebug(logPipeline) << "Processing AppEnd for:" << appName << "(queue flushed)";
    const int open = m_apps->end(appName);
    qCDebug(logPipeline) << "AppEnd processed, open file count:" << open;
    if (open > 0)
        qCDebug(logPipeline) << "Waiting for" << open << "files to complete before installing" << appName;
    else
        m_apps->tryInstallApp(appName);
    QMetaObject::invokeMethod(
        m_appMigrator, [migrator = m_appMigrator, appName] { migrator->onAppEndReceived(appName); },
        Qt::QueuedConnection);
}

void ReceivingRun::beginReceivingSettings()
{
    QMetaObject::invokeMethod(m_settingMigrator, &SettingMigrator::startReceiving, Qt::QueuedConnection);
}

void ReceivingRun::onSetting(MessageType type, const QByteArray &payload)
{
    void (SettingMigrator::*slot)(const QByteArray &) = &SettingMigrator::onSettingData;
    switch (type) {
    case MessageType::SettingStart:
        qCDebug(logPipeline) << ">>> SettingStart received";
        // Told a second time before it ran, it would count from zero twice.
        if (m_settings == Settings::AllHere || m_settings == Settings::Through)
            beginReceivingSettings();
        m_settings = Settings::Arriving;
        slot = &SettingMigrator::onSettingStart;
        break;
    case MessageType::SettingEnd:
        qCDebug(logPipeline) << ">>> SettingEnd received";
        slot = &SettingMigrator::onSettingEnd;
        break;
    case MessageType::SettingComplete:
        qCDebug(logPipeline) << ">>> SettingComplete received";
        m_settings = m_settings == Settings::Arriving ? Settings::AllHere : Settings::Through;
        slot = &SettingMigrator::onSettingComplete;
        break;
    default:
        break;
    }
    QMetaObject::invokeMethod(
        m_settingMigrator, [migrator = m_settingMigrator, slot, payload] { (migrator->*slot)(payload); },
        Qt::QueuedConnection);
}

void ReceivingRun::onSettingsThrough(int succeeded, int failed)
{
    qCDebug(logPipeline) << "[Setting] Migration finished - applied:" << succeeded << "failed:" << failed;
    m_report.settingsSuccess = succeeded;
    m_report.settingsFailed = failed;
    m_settings = Settings::Through;
    logAllCompletedCheck(!isOn(), !isOn() || m_workingOff, true, NewPC);
    m_settingsBound.stop();
    if (!isOn())
        closeLedger();
    Q_EMIT settingsFinished(succeeded, failed);
    onSettingsOver();
}

void ReceivingRun::onSettingsOver()
{
    if (!isOn())
        closeLedger();
    else if (m_linkLost && !m_workingOff)
        behindReceiver([this] { m_apps->cleanUp(); }); // the run has waited for them
    Q_EMIT stateChanged();
}

} // namespace Zandrove
