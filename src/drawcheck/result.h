// SPDX-License-Identifier: MIT
// The official result of a draw: seventeen digits, the prizes that they spell, and the numbers
// that win in each class of bet.
#pragma once

#include "entry/vocabulary.h"

#include <QStringList>

/// Digits of a result, each the text of one box, in reading order: the top number, the four bottom
/// numbers of three digits, the bottom number of two.
inline constexpr int DigitCount = 17;
using ResultDigits = std::array<QString, DigitCount>;

/// The digits of each prize, in the order of ResultColumns, which begins with the prizes. Places of
/// digits are lettered "a" to "q" in reading order.
inline constexpr std::array PrizePlaces{"abc", "def", "ghi", "jkl", "mno", "pq"};

/// What wins in each class, in the order of BetClasses: places of digits, numbers parted by a
/// blank. A bet of two digits on top wins straight on the last two alone, in any order on any two.
/// The bottom numbers of three digits take part in no run.
inline constexpr std::array<const char *, ClassCount> WinningPlaces{
    "abc",                     // 3 top straight
    "abc acb bca bac cba cab", // 3 tod
    "bc",                      // 2 top straight
    "ab ac bc ba cb ca",       // 2 tod
    "a b c",                   // run top
    "def ghi jkl mno",         // 3 bottom
    "pq",                      // 2 bottom
    "p q",                     // run bottom
};

/// The number that the digits at @p places spell, blanks left out.
QString resultNumber(const ResultDigits &digits, const char *places);

/// The numbers that win in the class at @p betClass of BetClasses, each once.
QStringList winningNumbers(const ResultDigits &digits, size_t betClass);
