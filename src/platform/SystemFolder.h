#pragma once

#include "platform/SpecialFolders.h"

namespace Zandrove::Platform {

/// What the system itself says of one of the folders that it keeps for users; empty where the call fails.
[[nodiscard]] QString systemFolder(SpecialFolder folder);

} // namespace Zandrove::Platform
