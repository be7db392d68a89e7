// SPDX-License-Identifier: MIT
// The official result of a draw: seventeen digits, the prizes that they form, and the numbers that
// win in each class of bet.
#pragma once

#include "entry/vocabulary.h"

#include <QStringList>

/// The digits of a result in reading order, each as the text of its box: the top number, the four
/// bottom numbers of three digits, the bottom number of two digits.
inline constexpr int DigitCount = 17;
using ResultDigits = std::array<QString, DigitCount>;

/// The digits of each prize, as letters: "a" is the first digit in reading order, "q" the last. The
/// prizes have the same order as in ResultColumns, where they are the first columns.
inline constexpr std::array PrizePlaces{"abc", "def", "ghi", "jkl", "mno", "pq"};

/// The winning numbers of each class, in the order of BetClasses: digits as letters, numbers
/// separated by spaces. On top, two digits straight win only with the last two digits, two digits
/// tod with any two. A run at the bottom wins only with the digits of the number of two digits.
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

/// Returns the number formed by the digits at @p places, letters as in PrizePlaces. Leaves out
/// spaces.
QString resultNumber(const ResultDigits &digits, const char *places);

/// Returns the winning numbers of the class with the index @p betClass in BetClasses, without
/// duplicates.
QStringList winningNumbers(const ResultDigits &digits, size_t betClass);
