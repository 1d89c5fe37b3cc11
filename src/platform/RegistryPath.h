#pragma once

#include <QString>

#include <optional>

namespace Zandrove::Platform {

/// A path of the registry, taken apart.
struct RegistryPath
{
    QString root;  ///< the root's long name, in capitals
    QString below; ///< what stands below it, without a backslash at either end; empty for the root itself
};

/// Takes `path` apart, with the root by its long or short name. Nothing where no root of that name exists.
[[nodiscard]] std::optional<RegistryPath> splitRegistryPath(const QString &path);

} // namespace Zandrove::Platform
