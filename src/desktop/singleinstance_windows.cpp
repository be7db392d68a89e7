// SPDX-License-Identifier: MIT
#include "desktop/singleinstance.h"

#include <windows.h>

namespace {

HANDLE mutex = nullptr;

} // namespace

bool becomeOnlyInstance()
{
    if (hasInstanceLock())
        return true;
    // "Global\\" makes it visible to all users of the machine. It ends with the process. Opening
    // one that belongs to another user's copy may be denied.
    mutex = CreateMutexW(nullptr, FALSE, L"Global\\mirakla-desk");
    const DWORD error = GetLastError();
    if (!mutex)
        return error != ERROR_ACCESS_DENIED;
    if (error != ERROR_ALREADY_EXISTS)
        return true;
    CloseHandle(mutex);
    mutex = nullptr;
    return false;
}

bool hasInstanceLock()
{
    return mutex != nullptr;
}

void leaveOnlyInstance()
{
    if (hasInstanceLock())
        CloseHandle(mutex);
    mutex = nullptr;
}
