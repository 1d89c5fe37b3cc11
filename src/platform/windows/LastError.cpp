#include "platform/LastError.h"

#include <qt_windows.h>

namespace Zandrove::Platform {

unsigned long lastErrorCode()
{
    return GetLastError();
}

QString errorText(unsigned long code)
{
    return qt_error_string(static_cast<int>(code));
}

} // namespace Zandrove::Platform
