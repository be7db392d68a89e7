// SPDX-License-Identifier: MIT
// The keyboard of the operating system: active layout, lock keys and native key codes.
// Implemented once for X11 and once for Windows.
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace desktop {

/// Returns the id of the active layout as eight hexadecimal digits, such as "00000409" for US
/// English. Empty if it is unknown.
QByteArray keyboardLayoutName();

/// Requests a layout. There is no error: check keyboardLayoutName() afterwards.
void loadKeyboardLayout(const QByteArray &id);

/// Returns true while Caps Lock is on; false if its state is unknown.
bool capsLock();

/// Returns true while Num Lock is on; false if its state is unknown.
bool numLock();

/// Returns the code of a key, one of those listed at keyCode(), from the native values of its
/// event. Returns 0 for a key without a code, and -1 if the event was made by a program and has no
/// native values.
int nativeKeyCode(quint32 scanCode, quint32 virtualKey);

} // namespace desktop
