#include "platform/SystemFolder.h"

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

QString systemFolder(SpecialFolder folder)
{
    switch (folder) {
    case SpecialFolder::LocalAppData:
        return qEnvironmentVariable("LOCALAPPDATA");
    case SpecialFolder::RoamingAppData:
        return qEnvironmentVariable("APPDATA");
    case SpecialFolder::CommonAppData:
        return qEnvironmentVariable("ProgramData");
    case SpecialFolder::StartMenuPrograms: {
        const QString roaming = qEnvironmentVariable("APPDATA");
        return roaming.isEmpty() ? QString() : roaming + u"/Microsoft/Windows/Start Menu/Programs"_s;
    }
    default:
        return {};
    }
}

} // namespace Zandrove::Platform
