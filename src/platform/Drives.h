#pragma once

#include <QStringList>

namespace Zandrove::Platform {

/// The fixed drives in the order of their letters, as "C:". Elsewhere than on Windows a drive is a folder of
/// that name in the current folder.
[[nodiscard]] QStringList fixedDrives();

} // namespace Zandrove::Platform
