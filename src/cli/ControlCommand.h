#pragma once

#include <QString>

#include <optional>

namespace Zandrove::Cli {

/// One command of --control.
struct ControlCommand
{
    enum Kind { Yes, No, Pause, Resume, Cancel, Again, End };

    Kind kind = End;
    QString folder;       ///< for Again: a folder to send instead of the ones before, may be empty
    quint64 question = 0; ///< for Yes and No: the number of the request, 0 for the oldest one
};

/// Reads one line; nothing for a line that is no command. `again` takes the rest of the line, `yes` and
/// `no` a number above 0.
[[nodiscard]] std::optional<ControlCommand> parseControlCommand(const QString &line);

} // namespace Zandrove::Cli
