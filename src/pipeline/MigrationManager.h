#pragma once

#include "core/common/Records.h"
#include "core/common/RunSummary.h"
#include "peer/Protocol.h"
#include "pipeline/Aftermath.h"
#include "pipeline/RunEvents.h"
#include "pipeline/RunInbox.h"
#include "pipeline/RunLink.h"

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

namespace Zandrove {

class MigrationRun;
class NetworkManager;
class ReceivingRun;

/// The face of the transfers: makes a run when one is to begin on either PC, hands it the messages of the
/// peer, tells of all that it tells, and keeps a New PC waiting for the next one. What a run does stands in
/// `SendingRun` and `ReceivingRun`.
///
/// Lives on the main thread. A run ends by exactly one of `completed`, `cancelled` (here), `peerCancelled`
/// and `transferReset`, by `runEnded` alone when its link is lost, or silently by `resetAndListen`; a failed
/// file is an item of the summary and a count in the report.
///
/// What arrives on a link that is not accepted is ignored, and nothing of a run leaves on such a link. A run
/// of the Old PC belongs to the link it began on, one of the New PC to the link by which its first message
/// came: it has nothing to do with a later one.
class MigrationManager : public RunEvents
{
    Q_OBJECT

public:
    explicit MigrationManager(QObject *parent = nullptr);
    /// Cancels a run that is on and stops the workers.
    ~MigrationManager() override;

    /// Not owned; may die first.
    void setNetworkManager(NetworkManager *networkManager);
    /// What the next runs send by. `setNetworkManager` sets the one over that network.
    void setLink(RunLink link);
    /// A `Role`.
    void setRole(int role)
    {
        if (role != m_role)
            endSession();
        m_role = role;
    }
    void setConflictConfig(const ConflictConfig &config) { m_conflictConfig = config; }
    /// Where the New PC puts files that no standard folder is named for.
    void setDestinationRoot(const QString &root) { m_destRoot = root; }

    /// A run is on.
    [[nodiscard]] bool isMigrating() const;
    /// And something of it has left or come.
    [[nodiscard]] bool isUnderWay() const;

    /// The running or the last run, as its user is told of it.
    [[nodiscard]] RunSummary summary() const;

    /// New PC: settings have arrived of which it isn't known yet what became of them.
    [[nodiscard]] bool isApplyingSettings() const;

    /// Begins a run in either role. Ignored while one is on.
    void start(const QList<AppInfo> &apps, const QList<FolderInfo> &folders,
               const QList<AccountInfo> &accounts, const QList<SettingInfo> &settings);
    /// Begins a run as the New PC: waits for what the peer sends. Ignored while one is on. From now on a run
    /// that is called off, here or there, is followed by another that waits, as told by `waiting`, until
    /// `endSession`, a change of the role, or a run that is sent.
    void startReceiving();
    /// Pauses both sides; the peer is told. Only while a run is on.
    void pause();
    void resume();
    /// Ends the run here and tells the peer.
    void cancel();
    /// Does nothing: no item is sent again.
    void retryFailed() {}
    /// Ends the run without a word to the peer. One whose link is lost is left to work off what has arrived.
    void resetAndListen();
    /// Tells the peer of a cancel, with the reason in `notification`. To be followed by `cancel`.
    void sendCancelNotification(const QJsonObject &notification);
    /// The session with this peer is over: the New PC waits for no further run.
    void endSession()
    {
        m_waits = false;
        m_waitAgainTimer.stop();
    }

Q_SIGNALS:
    void started();
    void cancelled();
    void peerCancelled();
    void transferReset();
    void completed(const Zandrove::MigrationReport &report);
    void bufferStatusChanged(qlonglong bytesToWrite); ///< never emitted
    /// A run in which something was sent or came is over, behind the signal that tells how. On the New PC
    /// settings may still have no outcome then; `settingsFinished` follows.
    void runEnded(const Zandrove::RunSummary &summary);
    /// Old PC: the last run is to be told of anew. It was complete, and the New PC is gone, or has called the
    /// run off, before it said that what was sent is installed and applied.
    void runRevised(const Zandrove::RunSummary &summary);
    /// New PC: a run waits for what the peer sends, behind one that was called off.
    void waiting();
    /// The peer began a run while none was on here; it is being received.
    void newTransferStarted();
    void sessionEndReceived();

public Q_SLOTS:
    /// The one entry of transfer messages, whatever link they came by.
    void onNetworkCommandReceived(Zandrove::Protocol::MessageType type, const QByteArray &payload);

private:
    void onLinkCommandReceived(Protocol::MessageType type, const QByteArray &payload);
    void process(Protocol::MessageType type, const QByteArray &payload);
    void processInbox();
    [[nodiscard]] bool admitWhileIdle(Protocol::MessageType type);
    void dropInbox();
    void boundWaitForSettings();

    void onLinkChanged();
    void onCutOff(RunEnd how);
    [[nodiscard]] bool isLinkOfRun() const;
    [[nodiscard]] bool mayReadLink() const;
    void resumeReadingLink()
    {
        if (m_link.resumeReading)
            m_link.resumeReading();
    }

    void beginRun(MigrationRun *run);
    void beginReceiving();
    void wait();
    void onRunEnded(RunEnd how, const MigrationReport &report);
    void onRunStateChanged();
    void retire();
    void tellSettled(const MigrationRun &run);
    void waitAgain(std::chrono::milliseconds delay)
    {
        if (m_waits)
            m_waitAgainTimer.start(delay);
    }

    [[nodiscard]] ReceivingRun *receivingRun() const;
    [[nodiscard]] RunState runState() const;

    QPointer<NetworkManager> m_networkManager;
    RunLink m_link;
    quint64 m_knownLink = 0; // its number when it was last looked at
    int m_role = OldPC;
    ConflictConfig m_conflictConfig;
    QString m_destRoot;
    RunSummary m_summary;          // of the last run that is over
    Aftermath m_aftermath;         // of the same
    MigrationRun *m_run = nullptr; // child: the one that is on, or whose settings are being applied
    QList<MigrationRun *> m_past;  // children: over, with threads that are still ending
    RunInbox m_inbox;
    bool m_waits = false;          // New PC: a run that is called off is followed by another
    QTimer m_waitAgainTimer;       // until it is
    bool m_strangerLogged = false; // one log line for what an unaccepted link brings
};

} // namespace Zandrove
