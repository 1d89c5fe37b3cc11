#pragma once

#include "core/common/Records.h"
#include "core/common/RunSummary.h"
#include "diagnosis/Finding.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace Zandrove::Cli {

/// Which side did something.
enum class Side { Here, Peer };

enum class FileStatus { Started, Completed, WasThere, Failed };

/// Where printed bytes go.
struct Streams
{
    std::function<void(const QByteArray &bytes)> out; ///< what was asked for
    std::function<void(const QByteArray &bytes)> err; ///< errors, questions and warnings
    std::function<int()> columns; ///< width of the terminal on `out` at this moment, 0 where there is none
};

/// Says what happens, to a person or to a program. Main thread only.
class Output
{
public:
    Output() = default;
    virtual ~Output() = default;
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    virtual void code(const QString &code) = 0; ///< this PC's own code, by which the peer may find it
    virtual void peer(const PCInfo &pc) = 0;    ///< found, or known better than before
    virtual void peerLost(const QString &id, quint64 key) = 0;
    virtual void found(const PCInfo &pc) = 0; ///< the peer that was looked for; its answer is waited for
    /// The peer has been reached and has not answered for a while: somebody has to say yes there.
    virtual void waiting(const QString &name) = 0;
    /// A peer asks to be let in; `asks` when the user is to answer, else the answer follows by itself.
    virtual void request(const ConnectionQuestion &question, bool asks) = 0;
    virtual void refused(const QString &name, const QString &why) = 0; ///< a request was turned down
    virtual void connected(const PCInfo &pc) = 0;
    virtual void disconnected() = 0; ///< the link to the peer is over
    virtual void progress(const TransferProgress &progress) = 0;
    /// `Completed` on both PCs: it stands on the New PC. `reason` goes with the last two.
    virtual void file(const QString &name, FileStatus status, const QString &reason) = 0;
    virtual void paused(Side by) = 0;
    virtual void resumed(Side by) = 0;
    virtual void cancelled(Side by) = 0;
    /// The New PC of the run installs an application.
    virtual void installing(const QString &pcName, const QString &app, int percent) = 0;
    /// A run that is over, whichever way.
    virtual void report(const RunSummary &summary) = 0;
    /// How far the scan of this PC has come, what it looks at, and how many applications it has found.
    virtual void scanning(int percent, const QString &item, int apps) = 0;
    virtual void inventory(const ScanResult &result) = 0;
    virtual void finding(const Finding &finding) = 0;
    virtual void diagnosed(int problems) = 0; ///< all findings have been told; so many stand in the way
    virtual void warning(const QString &message) = 0;
    virtual void error(const QString &message) = 0;
};

/// What the user is asked when a PC wants to be let in; no line end.
[[nodiscard]] QByteArray questionAbout(const ConnectionQuestion &question);

/// One line for standard error.
[[nodiscard]] QByteArray errorLine(const QString &message);

} // namespace Zandrove::Cli
