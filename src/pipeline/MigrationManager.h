#pragma once

#include "core/common/Records.h"
#include "peer/Protocol.h"

#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>

class QThread;

namespace Zandrove {

class AppMigrator;
class FileReceiverWorker;
class FileSenderWorker;
class NetworkManager;
class ReceivedApps;
class SettingMigrator;

/// Runs one transfer on either PC: owns the workers and their threads, decides the order of the phases, sends
/// every message that a worker wants sent, hands every message of the peer to its handler, and knows when the
/// run is over.
///
/// On the Old PC three things begin together: the folders' files are sent, the applications are packed, the
/// settings are exported. The files of applications follow those of the folders, and only behind them the
/// New PC is told that an application is complete, which makes it install it: on this thread, blocking it.
/// The run is complete with the slowest of the three. On the New PC the peer's last message completes it;
/// settings that have arrived by then may still be being applied.
///
/// Lives on the main thread. A run ends by exactly one of `completed`, `cancelled` (here), `peerCancelled`
/// and `transferReset`, or silently by `resetAndListen`; a failed file is a count in the report. A lost link
/// is not noticed here: the run stays on until `cancel` or `resetAndListen`.
///
/// What arrives on a link that is not accepted is ignored, and nothing of a run leaves on such a link. A run
/// of the Old PC belongs to the link it began on: it has nothing to do with a later one.
class MigrationManager : public QObject
{
    Q_OBJECT

public:
    explicit MigrationManager(QObject *parent = nullptr);
    /// Cancels a run that is on and stops the workers.
    ~MigrationManager() override;

    /// Not owned; may die first.
    void setNetworkManager(NetworkManager *networkManager);
    /// A `Role`.
    void setRole(int role);
    void setConflictConfig(const ConflictConfig &config) { m_conflictConfig = config; }
    /// Where the New PC puts files that no standard folder is named for.
    void setDestinationRoot(const QString &root) { m_destRoot = root; }

    /// A run is on.
    [[nodiscard]] bool isMigrating() const { return m_migrating; }

    /// New PC: the peer has begun a run since this side last cancelled, was cancelled, or started to wait.
    [[nodiscard]] bool hasIncomingRun() const { return m_incomingRun; }

    /// New PC: settings have arrived of which it isn't known yet what became of them.
    [[nodiscard]] bool isApplyingSettings() const { return m_settingsOwed && m_settingsRun == m_run; }

    /// Begins a run in either role. Ignored while one is on.
    void start(const QList<AppInfo> &apps, const QList<FolderInfo> &folders,
               const QList<AccountInfo> &accounts, const QList<SettingInfo> &settings);
    /// Begins a run as the New PC: waits for what the peer sends. Ignored while one is on.
    void startReceiving();
    /// Pauses both sides; the peer is told. Only while a run is on.
    void pause();
    void resume();
    /// Ends the run here and tells the peer. The workers stop for good at `resetAndListen` or the next run.
    void cancel();
    /// Does nothing: no item is sent again.
    void retryFailed() {}
    /// Ends the run without a word to the peer, stops the workers' work and clears what the run knew.
    void resetAndListen();
    /// Tells the peer of a cancel, with the reason in `notification`. To be followed by `cancel`.
    void sendCancelNotification(const QJsonObject &notification);
    /// The session with this peer is over: no re-arming that is still due takes place.
    void endSession();

Q_SIGNALS:
    void peerCancelled();
    void started();
    void paused();
    void resumed();
    void cancelled();
    void progressChanged(const Zandrove::TransferProgress &progress);
    void completed(const Zandrove::MigrationReport &report);
    void failed(const QString &reason);               ///< no worker causes it
    void bufferStatusChanged(qlonglong bytesToWrite); ///< never emitted
    /// The peer began a run while none was on here; it is being received.
    void newTransferStarted();
    void sessionEndReceived();
    void pausedByPeer();
    void resumedByPeer();
    void fileTransferStarted(const QString &fileName);
    void fileTransferProgress(const QString &fileName, int percent);
    void fileTransferCompleted(const QString &fileName);
    void fileTransferFailed(const QString &fileName, const QString &reason);
    void transferReset();
    void appInstallProgress(const QString &appName, int percent, const QString &status);
    void appInstallFinished(const QString &appName, bool success, const QString &error);
    /// What became of one application: on the Old PC whether it was packed, on the New PC whether it is
    /// installed.
    void appOutcome(const QString &appName, bool success, const QString &error);
    /// What became of one setting: on the Old PC whether it was exported, on the New PC whether it is
    /// applied.
    void settingOutcome(const QString &name, bool success, const QString &error);
    /// All settings of the run are through.
    void settingsFinished(int succeeded, int failed);

public Q_SLOTS:
    /// The one entry of transfer messages, whatever link they came by.
    void onNetworkCommandReceived(Zandrove::Protocol::MessageType type, const QByteArray &payload);

private Q_SLOTS:
    void onLinkCommandReceived(Zandrove::Protocol::MessageType type, const QByteArray &payload);

private:
    /// How long settings may still be applied before a new run ends that.
    static constexpr std::chrono::seconds SettingsDeadline{60}; // several programs of the system in a row

    /// A message that waits for the run in front of it to end.
    struct Message
    {
        Protocol::MessageType type;
        QByteArray payload;
    };

    /// How the files of one or more lists ended.
    struct FileCounts
    {
        int success = 0;
        int failed = 0;
        int skipped = 0;
        qint64 bytes = 0;
    };

    // Workers and threads.
    void setupConnections();
    void createReceiver();
    void createSender();
    void createAppMigrator();
    void createSettingMigrator();
    template <typename Worker>
    void startWorker(Worker *worker);
    void startOn(QThread *&thread, const QString &name, QObject *worker);
    template <typename... Arguments>
    [[nodiscard]] auto ofThisRun(void (MigrationManager::*slot)(Arguments...));
    void stopWorkers();
    void finishSettings();
    template <typename... Workers>
    static void endThread(QThread *&thread, const char *warning, Workers *&...workers);
    void invokeStartReceiving();
    void startEverythingReceiving();
    [[nodiscard]] bool mayReadLink() const;
    [[nodiscard]] bool isLinkOfRun() const;
    void resumeReadingLink();
    void setWorkersPaused(bool paused);
    void stopWork();
    void cancelWorkersQueued();

    // The run.
    void startSending();
    void clearRunState();
    void clearAppQueue();
    void resetRun();
    void clearReportCounters();
    void restartReceiving();
    [[nodiscard]] QList<FileTransferTask> buildTaskList(const QList<FolderInfo> &folders);
    void checkAllCompleted();
    [[nodiscard]] bool finishFileList();
    void storeCounts(const FileCounts &counts);

    // Applications on the Old PC.
    [[nodiscard]] QList<AppInfo> appsToMigrate() const;
    void startAppMigration(const QList<AppInfo> &apps);
    void onAppRequestSendFile(const QString &filePath, const QString &relativePath);
    void onAppMigrationFinished(int success, int failed, int skipped);
    void checkAppQueue();
    void startAppFilePhase();
    void sendDelayedAppEnds();

    // Applications on the New PC.
    void onAppStart(const QByteArray &payload);
    void onAppEnd(const QByteArray &payload);
    void processAppEnd(const QString &appName);
    void installWhenWritten(const QString &appName);
    void afterAppEndDelay(std::function<void()> action);
    [[nodiscard]] bool flushReceiver();
    void onAppInstalled(const QString &name, bool success, const QString &error);

    // Settings.
    [[nodiscard]] QList<SettingInfo> settingsToMigrate() const;
    void startSettingMigration(const QList<SettingInfo> &settings);
    void onSettingMigrationFinished(int applied, int failed);
    void onSettingStart(const QByteArray &payload);
    void onSettingComplete(const QByteArray &payload);
    void beginReceivingSettings();
    void tellSettingMigrator(void (SettingMigrator::*slot)(const QByteArray &), const QByteArray &payload);

    [[nodiscard]] MigrationReport buildReport() const;
    void sendToPeer(Protocol::MessageType type, const QByteArray &payload = {});
    void sendForWorker(Protocol::MessageType type, const QByteArray &payload);

    // What the workers report.
    void onWorkerFileStarted(const QString &fileName, qlonglong size);
    void onWorkerFileProgress(const QString &fileName, int percent, qlonglong moved, qlonglong total);
    void onWorkerFileCompleted(const QString &fileName);
    void onWorkerFileFailed(const QString &fileName, const QString &error);
    void onWorkerOverallProgress(const TransferProgress &progress);
    void onWorkerAllCompleted(int success, int failed, int skipped, qlonglong totalBytes);
    void onWorkerError(const QString &msg);
    void onWorkerRequestSendCommand(int type, const QByteArray &payload);
    void onAppStarted(const QString &name);
    void onAppProgress(const QString &name, int percent, const QString &status);
    void onAppFinished(const QString &name, bool success, const QString &error);
    void onSettingStarted(const QString &name);
    void onSettingProgress(const QString &name, int percent);
    void onSettingFinished(const QString &name, bool success, const QString &error);

    // What the peer sends.
    void process(Protocol::MessageType type, const QByteArray &payload);
    [[nodiscard]] bool isSettling() const { return !m_migrating && isApplyingSettings(); }
    [[nodiscard]] bool mustWait(Protocol::MessageType type) const;
    void processDeferred();
    void boundWaitForSettings();
    void dropDeferred();
    [[nodiscard]] bool admitWhileIdle(Protocol::MessageType type);
    void restartForNewTransfer();
    void dispatch(Protocol::MessageType type, const QByteArray &payload);
    void dispatchSetting(Protocol::MessageType type, const QByteArray &payload);
    void onTransferStart(const QByteArray &payload);
    void onFileHeader(const QByteArray &payload);
    void onFileData(const QByteArray &payload);
    void onFileEnd(const QByteArray &payload);
    void onFileAck(const QByteArray &payload);
    void onPeerPause();
    void onPeerResume();
    void handlePeerCancel();
    void onTransferComplete();
    void onTransferReset();

    SettingMigrator *m_settingMigrator = nullptr;
    QThread *m_settingThread = nullptr;
    bool settingPhaseDone = false;
    int m_settingsApplied = 0;
    int m_settingsFailed = 0;
    QStringList m_delayedAppEnds; // names of applications, held back until their files are through
    QPointer<NetworkManager> m_networkManager;
    int m_role = OldPC;
    ConflictConfig m_conflictConfig;
    QString m_destRoot;
    QThread *m_workerThread = nullptr;
    FileSenderWorker *m_senderWorker = nullptr;     // Old PC only
    FileReceiverWorker *m_receiverWorker = nullptr; // New PC only
    AppMigrator *m_appMigrator = nullptr;
    QThread *m_appThread = nullptr;
    ReceivedApps *m_receivedApps = nullptr; // New PC
    bool m_migrating = false;
    bool m_paused = false;
    bool m_pausedByPeer = false; // and not here
    QList<AppInfo> m_apps;
    QList<FolderInfo> m_folders;
    QList<AccountInfo> m_accounts; // kept, not used
    QList<SettingInfo> m_settings;
    TransferProgress m_progress;
    QDateTime m_startTime;
    int m_filesSuccess = 0;
    int m_filesFailed = 0;
    int m_filesSkipped = 0;
    qint64 m_totalBytes = 0;
    int m_appsSuccess = 0;
    int m_appsFailed = 0;
    int m_appsSkipped = 0;
    int appFilesQueued = 0;         // files that the application migrator has announced
    int m_appFilesMissing = 0;      // those of them that were gone by then
    bool appFilesAllQueued = false; // it has announced everything
    bool fileTransferDone = false;
    bool appMigrationDone = false;
    bool hasAppsToMigrate = false;
    QList<FileTransferTask> m_pendingAppTasks; // files of applications, to follow those of the folders
    bool m_foldersPhaseDone = false;
    bool m_appFilePhaseDone = false;
    bool sendingAppPhase = false; // the sender's list is that of the applications
    int m_nextTaskId = 0;
    bool m_listAnnounced = false; // the peer knows that a run begins
    QList<Message> m_early;       // what is to follow that
    FileCounts m_accumulated;     // over the lists that the sender of one run is given

    int m_run = 0; // deliveries made under an older number belong to a run that is over
    bool m_incomingRun = false;
    int m_rearmTicket = 0;            // a re-arming under an older number is no longer wanted
    bool m_refusalLogged = false;     // one log line a run for what an unaccepted link keeps from leaving
    bool m_strangerLogged = false;    // and one for what it brings
    std::optional<quint64> m_runLink; // Old PC: the link that the run began on
    bool m_completing = false;        // New PC: all has arrived, the receiver is still working it off
    QList<Message> m_deferred;        // what arrived meanwhile
    bool m_settingsBegun = false;     // New PC: the setting migrator was told to receive
    bool m_settingsOwed = false;      // New PC: it has not said yet what became of the settings
    int m_settingsRun = -1;           // New PC: the run in which it will
};

} // namespace Zandrove
