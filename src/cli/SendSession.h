#pragma once

#include "cli/ItemChoice.h"
#include "cli/Notices.h"
#include "cli/RunResults.h"
#include "cli/Session.h"

namespace Zandrove::Cli {

/// The Old PC: waits until the New PC that the user named is found, asks to be let in, sends what was
/// chosen and ends the session.
class SendSession final : public Session
{
    Q_OBJECT

public:
    /// The folders of `options` are absolute and were found to be readable.
    SendSession(const Options &options, TransferEngine &engine, Output &output, QObject *parent = nullptr);

    void start() override;

protected:
    void onInterrupt() override;
    void onInputEnded() override;
    bool obey(const ControlCommand &command) override;

private:
    enum class State {
        Scanning, ///< this PC, for what the user named
        Looking,
        Dialling,
        Settling, ///< connected, the New PC is getting ready
        Running,
        Parting, ///< the link broke in a run, whose end follows
        Resting, ///< between two runs on the same link
    };

    void connectEngine();
    void onScanCompleted(const ScanResult &result);
    void startLooking();
    void look();
    void dial(const PCInfo &pc);
    void onConnected();
    void onConnectionFailed(const QString &reason);
    void onConnectionRequested(const QString &name);
    void onDisconnected();
    void onSessionEndReceived();
    void linkOver(const QString &complaint);
    void endBrokenRun(const RunSummary &summary);

    void sendSelection();
    void sendAgain(const QString &folder);
    void onRunEnded(const RunSummary &summary);
    void onPeerCancelled();
    void onTransferFailed(const QString &reason);
    void cancelHere();
    void runEnded(ExitCode exitCode);
    void onTimeout();

    State m_state = State::Scanning;
    Notices m_notices;
    QTimer m_lookTimer;
    QElapsedTimer m_lookingFor; ///< an address, or since the target was found
    bool m_reached = false;     ///< the peer that is being dialled, which has been asked
    QTimer m_timeoutTimer;      ///< runs until the peer has let this PC in
    QStringList m_folders;
    ItemChoice m_choice;
    QString m_peerName;
    QString m_complaint; ///< what is to be said of the link that broke
    RunResults m_results;
    bool m_staysForMore = false; ///< --control: standard input may still ask for a further run
    bool m_completed = false;    ///< the last run came to its report
};

} // namespace Zandrove::Cli
