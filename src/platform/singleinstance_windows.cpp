// SPDX-License-Identifier: MIT
#include "platform/singleinstance.h"

#include <windows.h>

bool becomeOnlyInstance()
{
    // The mutex goes with the process.
    const HANDLE place = CreateMutexW(nullptr, TRUE, L"Global\\mirakla-desk");
    return !place || GetLastError() != ERROR_ALREADY_EXISTS;
}
