#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What stands in for the programs of Windows that Zandrove starts. Each works on the registry file of the
/// simulated PC, prints what a caller looks for, and ends with the exit code that the real one gives.
namespace Zandrove::StandIn {

constexpr int Succeeded = 0;
constexpr int Failed = 1;

[[nodiscard]] int runReg(const QStringList &arguments);
[[nodiscard]] int runPowercfg(const QStringList &arguments);
[[nodiscard]] int runNetsh(const QStringList &arguments);

void print(const QString &line);
/// Prints `line` to standard error, and returns Failed.
[[nodiscard]] int fail(const QString &line);

} // namespace Zandrove::StandIn
