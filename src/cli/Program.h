#pragma once

#include "cli/Options.h"

namespace Zandrove::Cli {

/// From here on the program's log goes to standard error when `shown`, and nowhere else; what is critical is
/// always shown. Main thread, before there is a second one.
void installLog(bool shown);

/// Answers a command line that is not to be run (help, the version, or an error) and returns the exit code;
/// nothing when `parsed` holds options that can be run. Makes the paths of those absolute.
[[nodiscard]] std::optional<int> answered(ParsedArguments &parsed);

/// Runs a command to its end and returns the exit code. Needs the application object.
[[nodiscard]] int run(const Options &options);

} // namespace Zandrove::Cli
