// SPDX-License-Identifier: MIT
// Coverage: how many of the numbers of a class are bought.
#pragma once

#include "entry/vocabulary.h"

/// The label of a class's bar, and how many numbers the class has. Tod numbers with the same digits
/// count as one, and those whose digits are all equal cannot be bet.
struct CoverageBar
{
    QStringView words;
    int numbers = 0;
};

/// In the order of BetClasses.
inline constexpr std::array<CoverageBar, ClassCount> CoverageBars{{
    {u"3 ตัวตรง", 1000},
    {u"3 ตัวโต๊ด", 210},
    {u"2 ตัวตรง", 100},
    {u"2 ตัวโต๊ด", 45},
    {u"วิ่งบน", 10},
    {u"3 ตัวตรง", 1000},
    {u"2 ตัวตรง", 100},
    {u"วิ่งล่าง", 10},
}};

/// Returns the text of the bar's label for @p bought numbers.
QString coverageText(const CoverageBar &bar, int bought);

/// Returns the value of the bar: @p bought, or 0 if it exceeds the numbers of the class. It can do
/// so for a tod class, if the book has the same digits in several orders.
int coverageValue(const CoverageBar &bar, int bought);
