#pragma once

#include "SimulatedPc.h"

namespace Zandrove {

/// A new folder in the first place whose files `isUnsuitable` lets pass.
[[nodiscard]] std::unique_ptr<QTemporaryDir> makeScratchFolder(const SimulatedPc::PathRule &isUnsuitable);

} // namespace Zandrove
