#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

/// The one home for running a program of the operating system.
namespace Zandrove::Platform {

/// How a program ended. A program that is missing, crashed or was still running at
/// the deadline did not finish.
struct ProgramResult
{
    bool finished = false;     ///< it ran and ended by itself before the deadline
    int exitCode = -1;         ///< meaningful only when finished
    QByteArray standardOutput; ///< what it wrote, also when it did not finish
    QByteArray standardError;  ///< the same for its complaints
};

/// Runs `program` with `arguments` and waits for it, `timeout` at the most (no value: without a limit); a
/// program that is still running then is killed. Blocks the calling thread; QThread::requestInterruption on
/// that thread ends the wait early, as if the deadline had come. A bare name means the system's own program
/// of that name where there is one (on Windows the one in System32, never one beside this program), else the
/// one on PATH.
[[nodiscard]] ProgramResult runProgram(const QString &program, const QStringList &arguments,
                                       std::optional<std::chrono::milliseconds> timeout = std::nullopt);

} // namespace Zandrove::Platform
