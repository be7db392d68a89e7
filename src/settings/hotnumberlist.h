// SPDX-License-Identifier: MIT
// Hot numbers, "เลขดัง": the numbers on which the agent pays half the prize.
#pragma once

#include "widgets/spreadmodel.h"

/// Columns of the list of hot numbers. Column 0 holds the key.
inline constexpr int HotPlaceColumn = 1;
inline constexpr int HotNumberColumn = 2; ///< as entered: pays half when bet straight
inline constexpr int HotTodColumn = 3;    ///< its orders: pay half when bet in any order

/// The tod form of a hot number: its distinct orders, the number itself first, as they are listed
/// on this screen. "-" for equal digits, "" for a number that has not two or three digits.
QString hotTodForm(const QString &number);

/// Fills the list, the newest number first.
void listHotNumbers(SpreadModel &list);

/// True if the list holds exactly that text; 21 may stand beside 12.
bool isHotNumber(const QString &number);

/// Puts a number on the list; raises "Overflow" for a key beyond 16 bits.
void addHotNumber(const QString &number);

/// Take one number or all from the list.
void deleteHotNumber(qint32 key);
void deleteAllHotNumbers();
