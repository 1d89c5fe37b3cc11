#pragma once

#include "cli/ControlCommand.h"
#include "cli/ExitCode.h"
#include "cli/Options.h"
#include "cli/Output.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace Zandrove {
class TransferEngine;
namespace Platform {
class InputLines;
}
} // namespace Zandrove

namespace Zandrove::Cli {

/// One command of the program at work: drives the engine, says on the output what happens, and ends by
/// exactly one `finished`. Main thread only; engine and output outlive it.
class Session : public QObject
{
    Q_OBJECT

public:
    Session(const Options &options, TransferEngine &engine, Output &output, QObject *parent = nullptr);
    ~Session() override;

    virtual void start() = 0;

    /// The user wants to stop: the peer is told before `finished` comes, unless
    /// the session is ending already.
    void interrupt();

Q_SIGNALS:
    void finished(int exitCode);

protected:
    /// What stands between this PC and a peer.
    enum class Link {
        None,
        Pending, ///< a handshake is open
        Up,
    };

    [[nodiscard]] const Options &options() const { return m_options; }
    [[nodiscard]] TransferEngine &engine() { return m_engine; }
    [[nodiscard]] Output &output() { return m_output; }
    [[nodiscard]] bool isFinishing() const { return m_finishing; }

    [[nodiscard]] Link link() const { return m_link; }
    void setLink(Link link) { m_link = link; }

    /// The peer as the user is to see it.
    [[nodiscard]] PCInfo connectedPeer() const;

    /// Says no to the last request.
    void refuseLastRequest();

    /// Passes progress, single files and pauses on to the output.
    void showRuns();
    /// Whether it is time to show progress again: at most five times a second.
    [[nodiscard]] bool progressIsDue();
    /// The New PC is gone before it was through: says so, and shows the report as it stands now.
    void showRevision(const RunSummary &summary);
    /// Shows how a run ended, and keeps its report where the user wants it.
    void showReport(const RunSummary &summary);
    /// Writes the file of --report, unless the run ended before it moved anything. A failure is told, and
    /// then the session doesn't end as if everything had moved.
    void keepReport(const RunSummary &summary);

    /// Reads standard input from now on: each line goes to `onInput`, its end to `onInputEnded`.
    void readInput();
    virtual void onInput(const QString &line);
    virtual void onInputEnded();
    /// Obeys a command of --control. Returns false for one that the session doesn't know.
    virtual bool obey(const ControlCommand &command);

    /// Stops what is going on and comes to `finish`.
    virtual void onInterrupt() = 0;

    /// Ends a standing link and emits `finished`. The peer hangs up first, so that everything that is on its
    /// way has reached it; one that doesn't is left after a while, which is a failure when `exitCode` says
    /// that a run was completed. What the engine signals from here on reaches the session no more.
    void finish(ExitCode exitCode);

private:
    void hangUp();
    void onNoFarewell();
    void partNow();
    void showLink();
    void showOutcome(const ItemResult &item);
    void showInstalling(const QString &app, int percent);
    void showProgress(const TransferProgress &progress);
    void showLastProgress();
    void conclude();

    const Options m_options;
    TransferEngine &m_engine;
    Output &m_output;
    Platform::InputLines *m_input = nullptr;
    Link m_link = Link::None;
    QElapsedTimer m_sinceProgress;
    TransferProgress m_heldProgress;
    bool m_progressHeld = false;
    QString m_installing;      ///< the application that was named last
    bool m_linkSilent = false; ///< and the user knows
    bool m_reportLost = false;
    std::chrono::milliseconds m_farewellTime; ///< how long a peer that has got everything may take to hang up
    bool m_finishing = false;
    bool m_concluded = false;
    ExitCode m_exitCode = EverythingMoved;
};

} // namespace Zandrove::Cli
