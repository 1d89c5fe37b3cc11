#pragma once

#include "core/common/Records.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace Zandrove::Cli {

enum class Command { Receive, Send, Discover, Diagnose, Scan };

/// What the command line asked for.
struct Options
{
    Command command = Command::Receive;
    int mode = NetworkMode; ///< a `DiscoveryMode`
    int role = -1;          ///< a `Role`, which end this copy is; once parsed, -1 for diagnose alone
    bool json = false;
    bool verbose = false;
    bool control = false;     ///< obey commands on standard input
    QString report;           ///< receive, send: file to write the report to
    bool yes = false;         ///< receive: accept each request without asking
    bool once = false;        ///< receive: end after the first report
    QString target;           ///< send: code, name or address of the New PC; diagnose: address
    QStringList folders;      ///< send: folders to move, as written
    QStringList apps;         ///< send: applications to move, by display name
    bool allApps = false;     ///< send: every application that can be moved
    QStringList settings;     ///< send: settings to move, by id
    bool allSettings = false; ///< send: every setting that this PC has
    std::optional<std::chrono::seconds> timeout; ///< receive, send: longest wait
    std::optional<std::chrono::seconds> seconds; ///< discover, diagnose: how long to look
};

/// The outcome of reading the command line: exactly one of the three is set.
struct ParsedArguments
{
    std::optional<Options> options;
    QString text;  ///< help or version, to be printed instead of a run
    QString error; ///< one line that says what is wrong
};

/// Reads `arguments`, which do not include the program's own name. Touches nothing but the texts.
[[nodiscard]] ParsedArguments parseArguments(const QStringList &arguments);

} // namespace Zandrove::Cli
