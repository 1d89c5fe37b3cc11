#pragma once

#include <QString>

namespace Zandrove::Platform {

/// What to start for `program`: the system's own program of that name where the system keeps them in a place
/// of their own, else the name as it stands, for a search along PATH.
[[nodiscard]] QString programPath(const QString &program);

} // namespace Zandrove::Platform
