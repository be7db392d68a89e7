// SPDX-License-Identifier: MIT
// Key presses as the codes that key filters work with.
#pragma once

class QKeyEvent;

/// Character codes of Backspace and Enter.
inline constexpr int BackspaceCode = 8;
inline constexpr int EnterCode = 13;

/// Returns the code of the character that a key press types: 8 for Backspace, 13 for both Enter
/// keys, 27 for Esc, 10 for Ctrl+Enter, 127 for Ctrl+Backspace, 1 to 26 for Ctrl with a letter,
/// otherwise the character itself. Returns 0 for keys that type none, such as Delete, Tab, arrows
/// and function keys, and for any other key pressed with either Ctrl or Alt; both together are
/// AltGr.
int characterCode(const QKeyEvent &key);

/// Returns the virtual-key code of Windows for the physical key, independently of layout and Shift:
/// 48 to 57 for the digit row, 96 to 105 for the digits of the keypad, 109 and 189 for the minus
/// keys, 112 to 123 for the function keys, 33 to 40 and 46 for the arrows and the keys above them,
/// 17 for Ctrl, 0 for all others. An event without native codes is judged by its Qt::Key, which
/// changes with Shift and is the same for the digit row and the keypad: its codes are those of the
/// main keyboard.
int keyCode(const QKeyEvent &key);

/// Returns true if a text field would insert the text of a key that has no character code, such as
/// Alt with a character or Ctrl with a digit.
bool isStrayText(const QKeyEvent &key);
