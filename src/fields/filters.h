// SPDX-License-Identifier: MIT
// Key filters of the number fields: digits only, whatever keyboard is in use. Codes are those of
// characters: 8 is Backspace, 13 Enter, 48 to 57 the Latin digits.
#pragma once

#include <QByteArray>

/// Layout id of US English.
inline constexpr const char *EnglishLayout = "00000409";

/// Passes digits, Backspace and Enter. Answers any other key with a box; its code becomes 0.
int DigitFilter(int code);

/// The same with "-" passing too: the entry field's filter.
int LineFilter(int code);

/// Drops any key but Backspace, silently, once the text is @p limit long. For combo boxes,
/// whose text has no limit of its own.
int MaxLengthFilter(qsizetype length, qsizetype limit, int code);

/// Answers a right click in a number field with a box, since its menu would paste.
void refuseRightClick();

/// The same for the entry field, in its own words.
void refuseRightClickInLine();

/// Makes a keyboard layout active. True if it is active at the end.
bool SetKeyboardLayout(const QByteArray &id);

/// Makes US English active, so that the digit row gives digits.
bool SetEnglishKeyboard();
