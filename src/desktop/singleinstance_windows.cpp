// SPDX-License-Identifier: MIT
#include "desktop/singleinstance.h"

#include <windows.h>

namespace {

HANDLE place = nullptr;

} // namespace

bool becomeOnlyInstance()
{
    if (place)
        return true;
    // It stands for the whole machine and goes with the process. Where another user's copy holds
    // it, it may not even be opened.
    place = CreateMutexW(nullptr, FALSE, L"Global\\mirakla-desk");
    const DWORD error = GetLastError();
    if (!place)
        return error != ERROR_ACCESS_DENIED;
    if (error != ERROR_ALREADY_EXISTS)
        return true;
    CloseHandle(place);
    place = nullptr;
    return false;
}

void leaveOnlyInstance()
{
    if (place)
        CloseHandle(place);
    place = nullptr;
}
