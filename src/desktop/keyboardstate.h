// SPDX-License-Identifier: MIT
// The desktop's keyboard: which layout is active, and the state of its locks. One file for each
// kind of desktop.
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace desktop {

/// Id of the active layout as eight hexadecimal characters, "00000409" for US English; empty
/// where the desktop does not tell.
QByteArray keyboardLayoutName();

/// Asks the desktop to activate a layout. What became of it, keyboardLayoutName() tells.
void loadKeyboardLayout(const QByteArray &id);

/// State of the lock keys; false where the desktop does not tell.
bool capsLock();
bool numLock();

/// Code of a key, as keyCode() counts them, from what the desktop's event says of it; 0 for a
/// key that has none there, -1 where the event says nothing.
int nativeKeyCode(quint32 scanCode, quint32 virtualKey);

} // namespace desktop
