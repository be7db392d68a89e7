// SPDX-License-Identifier: MIT
#include "platform/keycodes.h"

#include <QKeyEvent>

namespace {

constexpr int CtrlEnter = 10;
constexpr int CtrlBackspace = 127;

/// Characters of the keys that the toolkit gives no usable text for; -1 for all others.
int namedKeyCode(int key, bool ctrl)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return ctrl ? CtrlEnter : 13;
    case Qt::Key_Backspace:
        return ctrl ? CtrlBackspace : 8;
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

} // namespace

int characterCode(const QKeyEvent &key)
{
    const bool ctrl = key.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = key.modifiers().testFlag(Qt::AltModifier);
    const int named = namedKeyCode(key.key(), ctrl);
    if (named >= 0)
        return named;
    if (ctrl != alt) { // both together are AltGr, which gives plain characters
        const bool letter = key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z;
        return ctrl && letter ? key.key() - Qt::Key_A + 1 : 0;
    }
    return key.text().isEmpty() ? 0 : key.text().front().unicode();
}

bool isStrayText(const QKeyEvent &key)
{
    constexpr char16_t Delete = 0x7f;
    const QString text = key.text();
    return characterCode(key) == 0 && !text.isEmpty() && text.front() >= u' '
           && text.front() != Delete;
}
