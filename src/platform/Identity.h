#pragma once

#include <QString>

#include <optional>

/// Who this machine is, as the operating system tells it.
namespace Zandrove::Platform {

/// The computer's name by the system's own short-name call; nothing where there is no such call or it fails,
/// which a name of more than 15 characters causes too.
[[nodiscard]] std::optional<QString> shortComputerName();

/// The name of the user who runs this program; empty where the system does not tell.
[[nodiscard]] QString userName();

/// What the registry says of its version. Empty texts where a value, or the registry, is missing.
struct SystemVersion
{
    QString productName;
    QString currentBuildNumber;
    QString displayVersion;
};

[[nodiscard]] SystemVersion registeredSystemVersion();

} // namespace Zandrove::Platform
