#include "platform/ExternalProgram.h"

#include "platform/ProgramPath.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include <algorithm>

using namespace std::chrono_literals;

namespace Zandrove::Platform {

namespace {

/// How long one wait lasts before the thread's interruption request is looked at again.
constexpr auto WaitSlice = 200ms;
/// How long a killed program may take to be gone.
constexpr auto KillWait = 1000ms;

bool waitUntilEnded(QProcess &process, const QDeadlineTimer &deadline)
{
    while (process.state() != QProcess::NotRunning) {
        if (deadline.hasExpired() || QThread::currentThread()->isInterruptionRequested())
            return false;
        const auto slice = deadline.isForever()
                               ? qint64(WaitSlice.count())
                               : std::min(qint64(WaitSlice.count()), deadline.remainingTime());
        process.waitForFinished(int(slice));
    }
    return true;
}

} // namespace

ProgramResult runProgram(const QString &program, const QStringList &arguments,
                         std::optional<std::chrono::milliseconds> timeout)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(programPath(program), arguments, QIODevice::ReadOnly);

    const QDeadlineTimer deadline =
        timeout ? QDeadlineTimer(*timeout) : QDeadlineTimer(QDeadlineTimer::Forever);
    const bool ended = waitUntilEnded(process, deadline);
    if (!ended) {
        process.kill();
        process.waitForFinished(int(KillWait.count()));
    }
    const bool finished =
        ended && process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
    return {finished, finished ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

} // namespace Zandrove::Platform
