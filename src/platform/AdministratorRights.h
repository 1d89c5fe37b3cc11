#pragma once

#include <QString>

namespace Zandrove::Platform {

/// Whether the system can ask its user for an administrator's rights.
[[nodiscard]] bool canAskForRights();

/// Asks for them, and runs a command line of the system's shell with them; waits for its end. False where the
/// user said no, or the command failed. Never on the main thread: the question stays until it is answered.
[[nodiscard]] bool runWithRights(const QString &command);

} // namespace Zandrove::Platform
