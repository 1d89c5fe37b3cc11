#pragma once

#include "settings/SettingPackage.h"

namespace Zandrove {

/// Applies a setting from the Old PC to this user's system at once: imports its keys, writes its file and its
/// values, and tells the system of the change. What the package holds may be anything; its file is written
/// below the pictures folder only. False where it failed; nothing is rolled back then, and the log says why.
///
/// Runs programs of the system and broadcasts to windows, and blocks the calling thread for as long.
[[nodiscard]] bool applySetting(const SettingPackage &package);

} // namespace Zandrove
