// SPDX-License-Identifier: MIT
// Coverage: how many of the numbers that a class has are bought.
#pragma once

#include "entry/vocabulary.h"

/// What the bar of a class is called, and how many numbers the class has. Of tod bets those are the
/// families of digits that are not all equal.
struct CoverageBar
{
    QStringView words;
    int numbers;
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

/// What the bar's label says of @p bought numbers.
QString coverageText(const CoverageBar &bar, int bought);

/// How far the bar goes: not at all once a family stands in the book under two spellings and more
/// is bought than there is.
int coverageValue(const CoverageBar &bar, int bought);
