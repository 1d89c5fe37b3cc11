#pragma once

#include <QString>

#include <optional>

namespace Zandrove::Cli {

/// One command of --control.
struct ControlCommand
{
    enum Kind { Yes, No, Pause, Resume, Cancel, Again, End };

    Kind kind = End;
    QString folder; ///< for Again: a folder to send instead of the ones before, may be empty
};

/// Reads one line; nothing for a line that is no command. Only `again` takes an argument: the rest of the
/// line.
[[nodiscard]] std::optional<ControlCommand> parseControlCommand(const QString &line);

} // namespace Zandrove::Cli
