#include "platform/AdministratorRights.h"

#include "platform/windows/ComPtr.h"
#include "platform/windows/NativePath.h"

#include <qt_windows.h>

#include <shellapi.h>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

bool canAskForRights()
{
    return true;
}

bool runWithRights(const QString &command)
{
    const ComScope com; // which the shell may want for its question
    const QString parameters = u"/d /c "_s + command;
    SHELLEXECUTEINFOW call = {};
    call.cbSize = sizeof call;
    call.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
    call.lpVerb = L"runas";
    call.lpFile = L"cmd.exe";
    call.lpParameters = wide(parameters);
    call.nShow = SW_HIDE;
    if (!ShellExecuteExW(&call) || !call.hProcess)
        return false;
    WaitForSingleObject(call.hProcess, INFINITE);
    DWORD exitCode = 1;
    const bool isKnown = GetExitCodeProcess(call.hProcess, &exitCode) != 0;
    CloseHandle(call.hProcess);
    return isKnown && exitCode == 0;
}

} // namespace Zandrove::Platform
