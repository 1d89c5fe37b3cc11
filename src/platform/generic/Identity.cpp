#include "platform/Identity.h"

namespace Zandrove::Platform {

std::optional<QString> shortComputerName()
{
    return std::nullopt;
}

SystemVersion registeredSystemVersion()
{
    return {};
}

} // namespace Zandrove::Platform
