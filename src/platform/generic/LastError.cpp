#include "platform/LastError.h"

#include <cerrno>

namespace Zandrove::Platform {

unsigned long lastErrorCode()
{
    return static_cast<unsigned long>(errno);
}

QString errorText(unsigned long code)
{
    return qt_error_string(static_cast<int>(code));
}

bool isVolumeFull(unsigned long code)
{
    return code == ENOSPC || code == EDQUOT;
}

} // namespace Zandrove::Platform
