#pragma once

#include "core/common/Records.h"
#include "settings/SettingPackage.h"

#include <optional>

namespace Zandrove {

/// Gathers everything that belongs to a setting of this PC: exported keys, a file, single values, by the
/// setting's id. A setting with an unknown id is the key that it names. Nothing where a part is missing that
/// the setting can't do without; the log says which.
///
/// Runs programs of the system, and blocks the calling thread for up to 10 seconds for each of them.
[[nodiscard]] std::optional<SettingPackage> exportSetting(const SettingInfo &setting);

} // namespace Zandrove
