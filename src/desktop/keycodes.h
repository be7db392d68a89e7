// SPDX-License-Identifier: MIT
// Keys as the characters that they give: what key filters look at.
#pragma once

class QKeyEvent;

/// Character codes of the two keys that fields act on.
inline constexpr int BackspaceCode = 8;
inline constexpr int EnterCode = 13;

/// Code of the character that a key press gives: 8 for Backspace, 13 for both Enters, 27 for
/// Esc, 1 to 26 for Ctrl with a letter, else the character's own. 0 for keys that give none:
/// Delete, Tab, arrows, function keys, Alt with a letter.
int characterCode(const QKeyEvent &key);

/// Code of the key itself, whatever character the layout and the shift keys make of it: 48 to 57
/// the digit row, 96 to 105 the digits of the key pad, 109 and 189 the minus keys, 112 to 123 the
/// function keys, 33 to 40 and 46 the keys around the arrows, 17 Ctrl. Goes by what the desktop
/// says of the key, and by the toolkit's name of it where the desktop says nothing. 0 for others.
int keyCode(const QKeyEvent &key);

/// True for a key that gives no character code and that a text field would take as text all the
/// same: Alt with a letter, Ctrl with a sign of the key pad.
bool isStrayText(const QKeyEvent &key);
