#include "platform/Identity.h"

namespace Zandrove::Platform {

std::optional<QString> shortComputerName()
{
    return std::nullopt;
}

QString userName()
{
    return qEnvironmentVariable("USER");
}

} // namespace Zandrove::Platform
