// SPDX-License-Identifier: MIT
#include "desktop/keyboardstate.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace desktop {
namespace {

struct KeyRange
{
    quint32 first;
    quint32 last;
};

/// The keys that have a code. The codes of keyCode() are the virtual-key codes of Windows.
constexpr std::array KnownKeys{
    KeyRange{VK_CONTROL, VK_CONTROL}, KeyRange{VK_PRIOR, VK_DOWN},
    KeyRange{VK_DELETE, VK_DELETE},   KeyRange{'0', '9'},
    KeyRange{VK_NUMPAD0, VK_NUMPAD9}, KeyRange{VK_SUBTRACT, VK_SUBTRACT},
    KeyRange{VK_F1, VK_F12},          KeyRange{VK_OEM_MINUS, VK_OEM_MINUS},
};

} // namespace

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
    if (virtualKey == 0)
        return -1;
    const auto isIn = [virtualKey](const KeyRange &range) {
        return virtualKey >= range.first && virtualKey <= range.last;
    };
    return std::any_of(KnownKeys.begin(), KnownKeys.end(), isIn) ? int(virtualKey) : 0;
}

} // namespace desktop
