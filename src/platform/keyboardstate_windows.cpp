// SPDX-License-Identifier: MIT
#include "platform/keyboardstate.h"

#include <windows.h>

namespace desktop {

QByteArray keyboardLayoutName()
{
    char name[KL_NAMELENGTH] = {};
    return GetKeyboardLayoutNameA(name) ? QByteArray(name) : QByteArray();
}

void loadKeyboardLayout(const QByteArray &id)
{
    LoadKeyboardLayoutA(id.constData(), KLF_ACTIVATE);
}

bool capsLock()
{
    return (GetKeyState(VK_CAPITAL) & 1) != 0;
}

bool numLock()
{
    return (GetKeyState(VK_NUMLOCK) & 1) != 0;
}

int nativeKeyCode(quint32, quint32 virtualKey)
{
    return virtualKey == 0 ? -1 : int(virtualKey);
}

} // namespace desktop
