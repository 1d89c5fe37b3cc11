#include "platform/ProgramPath.h"

namespace Zandrove::Platform {

QString programPath(const QString &program)
{
    return program;
}

} // namespace Zandrove::Platform
