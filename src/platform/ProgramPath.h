#pragma once

#include <QString>

namespace Zandrove::Platform {

/// What to start for `program`, so that a bare name means the system's own program of that name where the
/// system keeps them in a place of their own, else the one on PATH.
[[nodiscard]] QString programPath(const QString &program);

} // namespace Zandrove::Platform
