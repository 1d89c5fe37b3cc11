#pragma once

#include "cli/Options.h"

#include <QLatin1StringView>

namespace Zandrove::Cli {

/// One option of the command line: how it is written, where it belongs and what it does. The parser and the
/// help both live on the same list of them.
struct OptionRule
{
    QLatin1StringView name;
    const char *valueName = nullptr; ///< as the help shows it; null for an option without a value
    unsigned commands = 0;           ///< bits 1 << Command
    const char *help = nullptr;      ///< untranslated
    /// Stores `value`; returns what is wrong with it, empty when nothing is.
    QString (*apply)(Options &options, const QString &value) = nullptr;

    [[nodiscard]] bool takesValue() const { return valueName != nullptr; }
    [[nodiscard]] bool belongsTo(Command command) const
    {
        return (commands & (1u << static_cast<unsigned>(command))) != 0;
    }
};

/// The rule for an option written as `name`, of `command` or of any; null for one that is not there.
[[nodiscard]] const OptionRule *findOption(const QString &name, std::optional<Command> command);

[[nodiscard]] std::optional<Command> commandNamed(const QString &name);

/// What --help prints without and with a command.
[[nodiscard]] QString generalHelp();
[[nodiscard]] QString commandHelp(Command command);

} // namespace Zandrove::Cli
