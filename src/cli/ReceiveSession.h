#pragma once

#include "cli/Admission.h"
#include "cli/Notices.h"
#include "cli/RunResults.h"
#include "cli/Session.h"

#include <chrono>

namespace Zandrove::Cli {

/// The New PC: shows a code, lets Old PCs in, receives what they send, and waits for the next one until it is
/// told to end.
class ReceiveSession final : public Session
{
    Q_OBJECT

public:
    ReceiveSession(const Options &options, TransferEngine &engine, Output &output, QObject *parent = nullptr);

    void start() override;

protected:
    void onInterrupt() override;
    void onInput(const QString &line) override;
    void onInputEnded() override;
    bool obey(const ControlCommand &command) override;

private:
    void connectEngine();
    void waitForPeer();
    void expectTransfer();

    void onConnectionRequested();
    [[nodiscard]] bool canAsk() const; ///< whether there is anybody to ask
    void onConnected();
    void onLinkBroken();
    void onSessionEndReceived();
    void onPeerLeft(const QString &complaint);
    void afterLink();

    void onTransferSign();
    void onNewTransferStarted();
    void onTransferReset();
    void onRunEnded(const RunSummary &summary);
    void onCompleted(const RunSummary &summary);
    void onRunBroken(const RunSummary &summary);
    void concludeWithoutSettings();
    RunSummary takeHeldReport();
    void concludeRun(const RunSummary &summary);
    void onTransferFailed(const QString &reason);
    void cancelHere();
    void onTimeout();
    void runEnded(ExitCode exitCode);

    Admission m_admission;
    Notices m_notices;
    QTimer m_timeoutTimer; ///< runs while nothing is arriving
    QTimer m_goodbyeTimer; ///< --once: after the report, until the peer has ended the session
    /// The peer has left, but the end of the run may still be on its way from the socket to the disk: runs
    /// from sign of life to sign of life.
    QTimer m_drainTimer;
    QTimer m_settingsTimer;
    std::optional<RunSummary> m_heldReport; ///< complete but for the settings, which are being applied
    QString m_complaint;                    ///< what is to be said when the run ends without being complete
    QString m_peerName;
    RunResults m_results;
    bool m_expecting = false; ///< armed on a fresh link, nothing has arrived
    bool m_receiving = false; ///< something of a run has arrived
    bool m_reported = false;  ///< --once: the one report is out
    bool m_endsThen = false;  ///< --control: the run in hand is the last one
    bool m_partsThen = false; ///< the peer has ended the session behind it
};

} // namespace Zandrove::Cli
