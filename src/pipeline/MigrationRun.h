#pragma once

#include "core/common/Records.h"
#include "core/common/RunSummary.h"
#include "peer/Protocol.h"
#include "pipeline/RunEvents.h"
#include "pipeline/RunInbox.h"
#include "pipeline/RunLedger.h"
#include "pipeline/RunLink.h"
#include "pipeline/TransferMessages.h"
#include "pipeline/WorkerThread.h"

#include <QObject>

namespace Zandrove {

class AppMigrator;
class SettingMigrator;

/// One transfer on one PC: owns its workers and their threads, its counts and its phases, and lives as long
/// as the transfer. What the two ends have in common stands here; `SendingRun` and `ReceivingRun` are the
/// ends.
///
/// Lives on the main thread. It ends once, by `ended`; behind that its workers are asked to end and are heard
/// no more. Only settings that have arrived by then are still applied, and told of. `gone` says that no
/// thread of it runs any more.
class MigrationRun : public RunEvents
{
    Q_OBJECT

public:
    /// `role`: a `Role`, that of this end.
    MigrationRun(int role, RunLink link, QObject *parent);
    ~MigrationRun() override;

    /// Begins its work. Once.
    virtual void begin() = 0;
    [[nodiscard]] bool isOn() const { return m_end == RunEnd::Running; }
    /// What a message has to wait for.
    [[nodiscard]] virtual RunState state() const { return isOn() ? RunState::On : RunState::None; }
    [[nodiscard]] bool isPaused() const { return m_paused; }
    /// Whether the run is one with the peer of this accepted link; 0 is none.
    [[nodiscard]] virtual bool belongsTo(quint64 link) const { return link != 0; }
    /// False while more than enough waits to be worked off.
    [[nodiscard]] virtual bool mayReadLink() const { return true; }

    /// Holds both sides; the peer is told. Nothing happens in a paused run, or one that is over.
    void pause();
    void resume();
    /// Ends the run, telling the peer where it ends here. One whose link is lost works
    /// off first what has arrived.
    virtual void end(RunEnd how);
    /// Whether anything of it has left or come.
    [[nodiscard]] virtual bool hasBegun() const { return true; }
    /// Old PC: everything has left, and only answers are waited for.
    [[nodiscard]] virtual bool hasAllLeft() const { return false; }
    /// Its link is lost, and what has arrived is still being worked off.
    [[nodiscard]] virtual bool isLinkLost() const { return false; }
    /// What its user is told, as far as it is known.
    [[nodiscard]] RunSummary summary() const;
    /// Nothing more is told of the run: what has no outcome yet is not confirmed.
    void closeLedger();
    /// Works off a message of the peer.
    virtual void handle(Protocol::MessageType type, const QByteArray &payload);

    /// Waits until every thread of the run has ended; settings that are being applied get up to a minute.
    void waitForThreads();

Q_SIGNALS:
    /// The run is over; the report is that of a complete one.
    void ended(Zandrove::RunEnd how, const Zandrove::MigrationReport &report);
    /// The answer of `state()` or `mayReadLink()` may be another one now.
    void stateChanged();
    /// No thread of a run that is over runs any more.
    void gone();

protected:
    /// How long settings that have arrived may still be applied when the next run wants to begin.
    static constexpr std::chrono::seconds SettingsDeadline{60}; // several programs of the system in a row

    /// Wires the file worker of either end, and starts its thread.
    template <typename Worker>
    void startFileWorker(Worker *worker);

    void sendToPeer(Protocol::MessageType type, const QByteArray &payload = {});
    void setPaused(bool paused);
    void finish(RunEnd how);
    /// Tells of the items that have their outcome by now; behind each event of the ledger.
    void tellSettled();
    /// An item has its outcome, before it is told.
    virtual void noteSettled(const ItemResult &) {}
    /// Closes the report: end and average speed.
    [[nodiscard]] virtual MigrationReport buildReport() const;

    virtual void pauseWorkers(bool paused) = 0;
    /// Stops all work at once and for good; may be called from anywhere in the run.
    virtual void stopWorkers();
    /// Whether settings have arrived of which it isn't known yet what became of them. They outlive the end of
    /// a run only where that is complete.
    [[nodiscard]] virtual bool owesSettings() const { return false; }
    [[nodiscard]] bool outlivedBySettings() const { return m_end == RunEnd::Complete && owesSettings(); }

    // What the workers tell.
    /// A message of any of them, which is to leave.
    virtual void onRequestSendCommand(int type, const QByteArray &payload);
    virtual void onFilesThrough(int success, int failed, int skipped, qlonglong bytes) = 0;
    virtual void onSettingsThrough(int succeeded, int failed) = 0;

    // What the peer sends; a message that is not for this end is logged, or ignored.
    virtual void onTransferStart(const QByteArray &payload);
    virtual void onFileHeader(const QByteArray &payload);
    virtual void onFileData(const QByteArray &) {}
    virtual void onFileEnd(const QByteArray &) {}
    virtual void onAnswerRequest(const TransferMessages::Ack &request);
    virtual void onAnswer(const TransferMessages::Ack &answer);
    virtual void onTransferComplete();
    virtual void onAppStart(const QByteArray &) {}
    virtual void onAppEnd(const QByteArray &) {}
    virtual void onSetting(Protocol::MessageType, const QByteArray &) {}

    RunLink m_link;
    MigrationReport m_report; // its counts, as they grow
    RunLedger m_ledger;
    AppMigrator *m_appMigrator;
    SettingMigrator *m_settingMigrator;
    WorkerThread m_fileThread;
    WorkerThread m_appThread;
    WorkerThread m_settingThread;
    bool m_pausedByPeer = false; // and not here

private:
    void onWorkerRequestSendCommand(int type, const QByteArray &payload);
    void onPeerPause();
    void onPeerResume();
    void onFileAck(const QByteArray &payload);
    void onAppFinished(const QString &name, bool success, const QString &error);
    void onSettingFinished(const QString &name, bool success, const QString &error);
    void wireMigrators();
    void watchThreads();
    void tellWhenGone();

    RunEnd m_end = RunEnd::Running;
    bool m_paused = false;
    bool m_refusalLogged = false; // one log line a run for what the link keeps from leaving
};

template <typename Worker>
void MigrationRun::startFileWorker(Worker *worker)
{
    connect(worker, &Worker::fileStarted, this,
            [this](const QString &name) { Q_EMIT fileTransferStarted(name); });
    connect(worker, &Worker::fileProgress, this,
            [this](const QString &name, int percent) { Q_EMIT fileTransferProgress(name, percent); });
    connect(worker, &Worker::fileCompleted, this, [this](const QString &name) {
        ++m_report.filesSuccess;
        Q_EMIT fileTransferCompleted(name);
    });
    connect(worker, &Worker::fileFailed, this, [this](const QString &name, const QString &reason) {
        ++m_report.filesFailed;
        Q_EMIT fileTransferFailed(name, reason);
    });
    connect(worker, &Worker::overallProgress, this, &MigrationRun::progressChanged);
    connect(worker, &Worker::allCompleted, this, &MigrationRun::onFilesThrough);
    connect(worker, &Worker::error, this, &MigrationRun::failed);
    connect(worker, &Worker::requestSendCommand, this, &MigrationRun::onWorkerRequestSendCommand);
    m_fileThread.carry(worker);
}

} // namespace Zandrove
