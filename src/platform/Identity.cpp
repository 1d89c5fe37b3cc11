#include "platform/Identity.h"

#include "platform/Registry.h"

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

SystemVersion registeredSystemVersion()
{
    const RegistryKey key(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s);
    return {key.text(u"ProductName"_s), key.text(u"CurrentBuildNumber"_s), key.text(u"DisplayVersion"_s)};
}

} // namespace Zandrove::Platform
