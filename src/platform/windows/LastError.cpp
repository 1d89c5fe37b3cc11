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

bool isVolumeFull(unsigned long code)
{
    constexpr unsigned long QuotaExceeded = 1295; // not in every compiler's headers
    return code == ERROR_DISK_FULL || code == ERROR_HANDLE_DISK_FULL || code == QuotaExceeded;
}

} // namespace Zandrove::Platform
