#include "platform/ReplaceFile.h"

#include "platform/windows/NativePath.h"

#include <qt_windows.h>

#include <chrono>

using namespace std::chrono_literals;

namespace Zandrove::Platform {

namespace {

constexpr int Attempts = 6;
constexpr auto AttemptPause = 100ms;

/// Whether `error` is what the system says of a file that somebody else has open. Of one that is about to be
/// replaced it says that access is denied.
bool isHeld(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_ACCESS_DENIED;
}

} // namespace

bool replaceFile(const QString &from, const QString &to)
{
    const QString source = nativePath(from);
    const QString target = nativePath(to);
    for (int attempt = 1;; ++attempt) {
        if (MoveFileExW(wide(source), wide(target), MOVEFILE_REPLACE_EXISTING) != 0)
            return true;
        const DWORD error = GetLastError();
        if (attempt == Attempts || !isHeld(error)) {
            SetLastError(error);
            return false;
        }
        Sleep(DWORD(AttemptPause.count()));
    }
}

} // namespace Zandrove::Platform
