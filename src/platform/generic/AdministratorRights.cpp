#include "platform/AdministratorRights.h"

namespace Zandrove::Platform {

bool canAskForRights()
{
    return false;
}

bool runWithRights(const QString & /*command*/)
{
    return false;
}

} // namespace Zandrove::Platform
