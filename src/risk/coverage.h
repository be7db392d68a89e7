// SPDX-License-Identifier: MIT
// Coverage: how many of the numbers that a class has are bought.
#pragma once

#include "entry/vocabulary.h"

/// The bar and the label of a class, and how many numbers it has. Of tod bets those are the
/// families of digits that are not all equal.
struct CoverageBar
{
    const char *bar;
    const char *label;
    QStringView words;
    int numbers;
};

/// In the order of BetClasses.
inline constexpr std::array<CoverageBar, ClassCount> CoverageBars{{
    {"pb31", "Label1", u"3 ตัวตรง", 1000},
    {"pb32", "Label2", u"3 ตัวโต๊ด", 210},
    {"pb21", "Label3", u"2 ตัวตรง", 100},
    {"pb22", "Label4", u"2 ตัวโต๊ด", 45},
    {"pbrunup", "Label5", u"วิ่งบน", 10},
    {"pd1", "Label6", u"3 ตัวตรง", 1000},
    {"pd2", "Label7", u"2 ตัวตรง", 100},
    {"pd3", "Label8", u"วิ่งล่าง", 10},
}};

/// What the bar's label says of @p bought numbers.
QString coverageText(const CoverageBar &bar, int bought);

/// How far the bar goes: not at all once a family stands in the book under two spellings and more
/// is bought than there is.
int coverageValue(const CoverageBar &bar, int bought);
