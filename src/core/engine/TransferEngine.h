#pragma once

#include "core/common/Records.h"
#include "core/common/RunSummary.h"
#include "peer/LinkEnvironment.h"

#include <QList>
#include <QObject>
#include <QStringList>

namespace Zandrove {

class AccountScanner;
class AppScanner;
class FileScanner;
class MigrationManager;
class NetworkManager;
class SettingScanner;

/// The facade of the back end, and all that a face of the program sees of it: discovery and pairing, the
/// inventory of the Old PC, the user's selection, a transfer, its report, and the ways back to another round.
///
/// Main thread only. No operation returns a result; a failure leaves through a signal with a translated text:
/// `connectionFailed` for pairing, `scanFailed` and `transferFailed` for a scan and a transfer that cannot
/// start, `error` and `warning` for the rest. A scan that started ends by `scanCompleted` or `scanCancelled`.
/// A transfer that started ends by `transferCompleted`, `transferCancelled` (here), `peerCancelled` or
/// `transferReset` (there), and in any case, also when the link is lost, by `runEnded`.
class TransferEngine : public QObject
{
    Q_OBJECT

public:
    explicit TransferEngine(QObject *parent = nullptr, LinkEnvironment environment = {});
    ~TransferEngine() override;

    /// Which end this copy is, a `Role`. Emits `stateChanged`.
    void setRole(int role);
    [[nodiscard]] int role() const { return m_role; }
    /// A `DiscoveryMode`. Emits `stateChanged` when it changes.
    void setMode(int mode);

    /// This PC's own four-digit code.
    [[nodiscard]] QString verifyCode() const { return m_verifyCode; }

    /// Draws a new code and starts to broadcast and to listen. Emits `discoveryStarted`.
    void startDiscovery();
    void stopDiscovery();
    /// Forgets all peers and broadcasts anew; the code stays.
    void restartBroadcast();
    [[nodiscard]] QList<PCInfo> discoveredPCs() const;

    /// Dials `pc`, which the table knows by its key, else by its id. Emits `connecting`, `waitingForAnswer`
    /// once it is reached, then `connected` or `connectionFailed`.
    void connectToPC(const PCInfo &pc);
    /// Dials the IPv4 address or host name that the user has entered, and no other, whether discovery knows
    /// of anybody there or not. Emits what connectToPC() does.
    void connectToAddress(const QString &address);
    /// Dials the peer whose screen shows `code`. Fails where more than one does, and names them.
    void connectByCode(const QString &code);
    /// The questions of PCs that wait for the user's answer, oldest first; the last one is that of the last
    /// `connectionRequested`. A face answers with the number of the one it shows.
    [[nodiscard]] QList<ConnectionQuestion> openQuestions() const;
    /// The user's yes to a question, 0 for the oldest open one; `code` must be this PC's own. Whoever else
    /// asks is turned down then, and a link that was accepted before ends. An answer that
    /// comes too late does nothing.
    void acceptConnection(const QString &code, quint64 question = 0);
    /// The user's no.
    void rejectConnection(quint64 question = 0);
    /// Ends the link. Emits `disconnected` at once, and again when the peer has been told.
    void disconnectFromPeer();
    /// Also true between `connectToPC` and its outcome, and after `connectToPC` for a peer that is not in the
    /// table: ask only after `connected`.
    [[nodiscard]] bool isConnected() const;
    /// Whether a peer is accepted at this moment, on whichever link.
    [[nodiscard]] bool hasAcceptedLink() const;
    /// The peer, or the one being dialled; a default record without one.
    [[nodiscard]] PCInfo connectedPC() const { return m_connectedPC; }

    /// Lists what can be moved from this PC. Emits `scanStarted`, `scanProgress` and in the end
    /// `scanCompleted`; or `warning` while a scan is running, and `scanFailed` for a New PC without a peer.
    /// The applications are looked for on another thread; everything else is done before this returns, which
    /// takes as long as reading the user's folders does.
    void startScan();
    /// Gives a running scan up. Emits `scanCancelled`.
    void cancelScan();

    /// What the last scan found; empty while one is running.
    [[nodiscard]] const ScanResult &scanResult() const { return m_scanResult; }
    /// Select by position in the scan result; positions outside it are ignored.
    void setSelectedApps(const QList<int> &indexes);
    void setSelectedAccounts(const QList<int> &indexes);
    void setSelectedSettings(const QList<int> &indexes);
    /// Folders to move, by path.
    void setSelectedPaths(const QStringList &paths);
    [[nodiscard]] int selectedCount() const;

    /// Where received files go that have no standard folder of their own: by
    /// default "Zandrove" in the downloads.
    [[nodiscard]] QString destinationRoot() const { return m_destinationRoot; }

    /// Sends the selection. Emits `transferStarted`, or `transferFailed` when no peer is accepted,
    /// nothing selected, or a scan under way.
    void startTransfer();
    /// Waits, as the New PC, for what the peer sends. Emits `transferStarted`, and again whenever it waits
    /// anew by itself, behind a run that was called off or reset, for as long as the session lasts.
    void startReceiving();
    /// A run has begun and is not over: `runEnded` follows. On the New PC it outlives its link, until what
    /// had arrived by then is on the disk.
    [[nodiscard]] bool isRunUnderWay() const;
    /// New PC: settings have arrived that are still being applied. `settingsFinished` follows.
    [[nodiscard]] bool isApplyingSettings() const;
    /// Holds the transfer on both sides. Emits `transferPaused`.
    void pauseTransfer();
    /// Goes on, whichever side paused. Emits `transferResumed`.
    void resumeTransfer();
    /// Ends the running transfer and tells the peer. Emits `transferCancelled`.
    void cancelTransfer();
    /// Sends nothing again: no failed item is retried.
    void retryFailed();

    [[nodiscard]] TransferProgress progress() const { return m_progress; }
    [[nodiscard]] MigrationReport report() const { return m_report; }
    /// The running or the last run, as its user is to be told of it.
    [[nodiscard]] RunSummary summary() const;

    /// Back to the very start: ends everything, disconnects, clears all state.
    void reset();
    /// The peer went away and another one is waited for: what was running is over, the selection stays.
    void resetForNewConnection();
    /// New PC: back to waiting for a further transfer on the same link.
    void resetForNewReceive();
    /// Old PC: back to the selection for a further transfer on the same link.
    void resetTransfer();
    /// Old PC, after a transfer: tells the New PC that a further one follows.
    void notifyPeerReadyForNew();
    /// Tells the peer that this run of the program's flow is over. The link stays.
    void sendSessionEnd();

Q_SIGNALS:
    void stateChanged();
    void peerCancelled();
    void transferReset();
    void newTransferStarted();
    void pausedByPeer();
    void resumedByPeer();
    void sessionEndReceived();
    void discoveryStarted();
    void discoveryStopped();
    void pcDiscovered(const Zandrove::PCInfo &pc); ///< add or update
    void pcUpdated(const Zandrove::PCInfo &pc);
    /// `key` is the one of the peer's record, by which a face knows its row: an id may stand in several.
    void pcLost(const QString &pcId, quint64 key = 0);
    /// A PC is about that has the same role as this one, so that neither lists the other: told when it is
    /// heard first, and every 5 s for as long as it is heard.
    void sameRolePeer(const QString &name);
    /// Found at a start of discovery: another program has the port. With TcpPort nobody can dial this PC,
    /// with UdpPort it hears nobody. `program` is empty where the system does not tell.
    void portTaken(quint16 port, const QString &program);
    void directScanStarted();
    void directScanProgress(int scanned, int total);
    void directScanFinished(bool found);
    void connecting();
    /// The dialled peer has been reached, and its user asked: somebody has to say yes there. Followed by
    /// connected or connectionFailed.
    void waitingForAnswer(const QString &name);
    void connected();
    void disconnected();
    void connectionFailed(const QString &reason);
    void connectionTimeout(); ///< followed by connectionFailed
    /// A peer asks to pair: answer with acceptConnection(code) or rejectConnection.
    void connectionRequested(const QString &pcName, const QString &code);
    /// A question has ended unanswered. It may be one that was never told.
    void questionEnded(quint64 question);
    void scanStarted();
    /// `percent` from 0 to 100, of the part of the scan that reports; `currentItem` is what it is looking at.
    /// The number of applications grows during the scan, those of folders and accounts stay 0.
    void scanProgress(int percent, const QString &currentItem, int appsFound, int foldersFound,
                      int accountsFound);
    void scanCompleted(const Zandrove::ScanResult &result);
    void scanCancelled();
    void scanFailed(const QString &reason); ///< the scan was not begun
    void transferStarted();
    void transferProgressChanged(const Zandrove::TransferProgress &progress);
    void transferPaused();
    void transferResumed();
    void transferCompleted(const Zandrove::MigrationReport &report);
    void transferCancelled();
    void transferFailed(const QString &reason);
    void fileTransferStarted(const QString &fileName);
    void fileTransferProgress(const QString &fileName, int percent);
    void fileTransferCompleted(const QString &fileName);
    void fileTransferFailed(const QString &fileName, const QString &reason);
    /// What became of one application: on the Old PC whether it was packed, on the New PC whether it is
    /// installed. `error` is empty on success.
    void appOutcome(const QString &appName, bool success, const QString &error);
    /// What became of one setting: on the Old PC whether it was exported, on the New PC whether it is
    /// applied, which may come after `transferCompleted`.
    void settingOutcome(const QString &name, bool success, const QString &error);
    /// A file, an application or a setting has its outcome.
    void itemSettled(const Zandrove::ItemResult &item);
    /// A run is over, however it ended: once for each. After the signal that tells how, where there is one,
    /// but before transferCancelled.
    void runEnded(const Zandrove::RunSummary &summary);
    /// Old PC, behind a complete run: the New PC is gone, or has called the run off, before it said that it
    /// is through with installing and applying. What was sent for that is not confirmed.
    void runRevised(const Zandrove::RunSummary &summary);
    void linkSilent(int seconds); ///< nothing has come from the peer for so long; the link stands
    void linkAnswers();           ///< it has answered again
    /// New PC: the peer has announced more than fits on the destination's volume, in bytes. The run goes on.
    void spaceShort(qint64 needed, qint64 available, const QString &volume);
    /// The New PC installs an application, by the name that is shown.
    void installing(const QString &name, int percent);
    /// All settings of the run are through.
    void settingsFinished(int succeeded, int failed);
    void info(const QString &message);
    void warning(const QString &message);
    void error(const QString &message);

private Q_SLOTS:
    void onPCDiscovered(const Zandrove::PCInfo &pc);
    void onPCLost(const QString &pcId, quint64 key);
    void onConnected();
    void onDisconnected();
    void onConnectionFailed(const QString &reason);
    void onConnectionTimeout();
    void onAppScanFinished(const QList<Zandrove::AppInfo> &apps);
    void onFileScanFinished(const QList<Zandrove::FolderInfo> &folders);
    void onAccountScanFinished(const QList<Zandrove::AccountInfo> &accounts);
    void onSettingScanFinished(const QList<Zandrove::SettingInfo> &settings);
    void onScanProgress(int percent, const QString &item);
    void onScanError(const QString &message);
    void onMigrationProgress(const Zandrove::TransferProgress &progress);
    void onMigrationCompleted(const Zandrove::MigrationReport &report);
    void onMigrationFailed(const QString &reason);
    void onFileTransferStarted(const QString &fileName);
    void onFileTransferProgress(const QString &fileName, int percent);
    void onFileTransferCompleted(const QString &fileName);
    void onFileTransferFailed(const QString &fileName, const QString &reason);

private:
    void setupConnections();
    void setupLinkConnections();
    void setupScanConnections();
    void setupMigrationConnections();
    [[nodiscard]] static QString generateVerifyCode();
    [[nodiscard]] bool hasLink();
    void forgetPeerDialledInVain();
    [[nodiscard]] bool knowsPeer(const QString &id) const;

    void startScanners();
    void clearScanResult();
    void joinScans();

    void beginTransfer();
    void configureMigration(int role);
    [[nodiscard]] QList<FolderInfo> foldersToSend() const;
    void onNewTransferStarted();
    void onWaiting();
    void onPeerCancelled();
    void onTransferReset();
    void setPausedByPeer(bool paused);
    void onRunEnded(const RunSummary &summary);
    void clearAll();

    NetworkManager *m_networkManager = nullptr;
    AppScanner *m_appScanner = nullptr;
    FileScanner *m_fileScanner = nullptr;
    AccountScanner *m_accountScanner = nullptr;
    SettingScanner *m_settingScanner = nullptr;
    MigrationManager *m_migrationManager = nullptr;
    int m_mode = NetworkMode;
    int m_role = OldPC;
    ConflictConfig m_conflictConfig;
    QString m_destinationRoot;
    PCInfo m_connectedPC;
    ScanResult m_scanResult;
    TransferProgress m_progress;
    MigrationReport m_report;
    QString m_verifyCode;
    bool m_scanning = false;
    int m_completedScans = 0; // scanners that are through, 0 to 4
    quint64 m_scanNumber = 0; // tells a scan from older ones and from one that a reset has forgotten
    int m_appsFound = 0;      // during a scan
    int m_accountsFound = 0;  // stays 0
    bool m_transferring = false;
    bool m_paused = false;
    QStringList m_selectedPaths;
    bool m_dialingUnknownPeer = false; // inside a connectToPC for a peer that is not in the table
};

} // namespace Zandrove
