// SPDX-License-Identifier: MIT
// Hot numbers (เลขดัง), on which the agent pays half the prize: which bets they reach.
#pragma once

#include "entry/vocabulary.h"

#include <QRgb>
#include <QSet>
#include <QStringList>

/// Ground of what pays half because of a hot number: a number on the board, a winner's money.
inline constexpr QRgb HotColor = 0xD79F9E;

/// The hot numbers, the one entered first in front. Uses RecordsetB.
QStringList readHotNumbers();

class HotNumbers
{
public:
    HotNumbers() = default;
    explicit HotNumbers(const QStringList &numbers);

    /// True for a straight bet on a hot number, on top as at the bottom, and for a tod bet on one in
    /// any order of its digits. A run bet is never hot.
    bool reach(const BetClass &betClass, const QString &number) const;

    bool operator==(const HotNumbers &other) const { return m_list == other.m_list; }

private:
    QStringList m_list;
    QSet<QString> m_numbers;
    QSet<QString> m_turned; ///< with the digits in reverse
    QSet<QString> m_sorted; ///< the first three digits in rising order
};
