// SPDX-License-Identifier: MIT
// Key filters of the number fields. Codes are those of characterCode(): 8 for Backspace, 13 for
// Enter, 48 to 57 for the Latin digits. A filter returns the code if it passes, otherwise 0.
#pragma once

#include <QByteArray>

/// Layout id of US English, in the form that desktop::keyboardLayoutName() returns.
inline constexpr const char *EnglishLayout = "00000409";

/// Passes digits, Backspace and Enter. Shows a box for any other key.
int DigitFilter(int code);

/// Passes "-" too: the filter of the entry field.
int LineFilter(int code);

/// Passes only Backspace once the text has @p limit characters, without a box. For combo boxes,
/// which have no maximum length.
int MaxLengthFilter(qsizetype length, qsizetype limit, int code);

/// Shows the box for a right click in a number field, whose context menu could paste.
void refuseRightClick();

/// Shows the box for a right click in the entry field.
void refuseRightClickInLine();

/// Activates a keyboard layout. Returns true if it is active afterwards.
bool SetKeyboardLayout(const QByteArray &id);

/// Activates US English, since the digit row of the Thai layout types no Latin digits.
bool SetEnglishKeyboard();
