#pragma once

#include <QString>

namespace Zandrove::Platform {

/// The number that the system gave the last failed call on this thread. To be asked right behind the call.
[[nodiscard]] unsigned long lastErrorCode();

/// The system's words for such a number.
[[nodiscard]] QString errorText(unsigned long code);

/// Whether such a number says that the volume, or the user's share of it, is full.
[[nodiscard]] bool isVolumeFull(unsigned long code);

} // namespace Zandrove::Platform
