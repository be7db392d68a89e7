// SPDX-License-Identifier: MIT
#include "desktop/keycodes.h"

#include "desktop/keyboardstate.h"

#include <QKeyEvent>

#include <array>

namespace {

constexpr int CtrlEnter = 10;
constexpr int CtrlBackspace = 127;

/// Returns the character code of Enter, Backspace, Esc, Tab or Delete, or -1 for any other key.
/// Their QKeyEvent::text() is not used: it would be 127 for Delete and 9 for Tab.
int namedKeyCode(int key, bool ctrl)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return ctrl ? CtrlEnter : EnterCode;
    case Qt::Key_Backspace:
        return ctrl ? CtrlBackspace : BackspaceCode;
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Delete:
        return 0;
    default:
        return -1;
    }
}

struct NamedKey
{
    int key;
    int code;
};
constexpr std::array NamedKeys{
    NamedKey{Qt::Key_Minus, 189}, NamedKey{Qt::Key_PageUp, 33},  NamedKey{Qt::Key_PageDown, 34},
    NamedKey{Qt::Key_End, 35},    NamedKey{Qt::Key_Home, 36},    NamedKey{Qt::Key_Left, 37},
    NamedKey{Qt::Key_Up, 38},     NamedKey{Qt::Key_Right, 39},   NamedKey{Qt::Key_Down, 40},
    NamedKey{Qt::Key_Delete, 46}, NamedKey{Qt::Key_Control, 17},
};

/// Returns the virtual-key code of Windows for a Qt::Key, or 0 if keyCode() does not list it.
int codeOfNamedKey(int key)
{
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return key - Qt::Key_0 + 48;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return key - Qt::Key_F1 + 112;
    for (const NamedKey &named : NamedKeys) {
        if (key == named.key)
            return named.code;
    }
    return 0;
}

} // namespace

int characterCode(const QKeyEvent &key)
{
    const bool ctrl = key.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = key.modifiers().testFlag(Qt::AltModifier);
    const int named = namedKeyCode(key.key(), ctrl);
    if (named >= 0)
        return named;
    if (ctrl != alt) { // both together are AltGr, which types plain characters
        const bool letter = key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z;
        return ctrl && letter ? key.key() - Qt::Key_A + 1 : 0;
    }
    return key.text().isEmpty() ? 0 : key.text().front().unicode();
}

int keyCode(const QKeyEvent &key)
{
    const int code = desktop::nativeKeyCode(key.nativeScanCode(), key.nativeVirtualKey());
    return code >= 0 ? code : codeOfNamedKey(key.key());
}

bool isStrayText(const QKeyEvent &key)
{
    constexpr char16_t Delete = 0x7f;
    const QString text = key.text();
    return characterCode(key) == 0 && !text.isEmpty() && text.front() >= u' '
           && text.front() != Delete;
}
