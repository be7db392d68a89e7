// SPDX-License-Identifier: MIT
// Lists, adds and deletes hot numbers (เลขดัง), on which the agent pays half the prize.
#pragma once

#include "widgets/spreadmodel.h"

/// Columns of the list. Column 0 has the key.
inline constexpr int HotPlaceColumn = 1;  ///< row number
inline constexpr int HotNumberColumn = 2; ///< as entered; a straight bet on it wins half
inline constexpr int HotTodColumn = 3;    ///< its orders; a tod bet on any of them wins half

/// Returns the text of HotTodColumn: the distinct orders of a number, the number itself first. "-"
/// if all digits are equal, "" if there are not two or three of them.
QString hotTodForm(const QString &number);

/// Fills the list, the newest number first.
void listHotNumbers(SpreadModel &list);

/// Returns true if this number is a hot number. Another order of its digits does not count.
bool isHotNumber(const QString &number);

/// Adds a number to the list. Throws "Overflow" if its key would exceed 16 bits.
void addHotNumber(const QString &number);

/// Deletes the hot number with this key.
void deleteHotNumber(qint32 key);

/// Deletes all hot numbers.
void deleteAllHotNumbers();
