// SPDX-License-Identifier: MIT
// Hot numbers (เลขดัง): bets on them win half the prize. Finds out which bets are affected.
#pragma once

#include "entry/vocabulary.h"

#include <QHash>
#include <QRgb>
#include <QStringList>

/// Background of what pays half because of a hot number: numbers on the board, payouts of winners.
inline constexpr QRgb HotColor = 0xD79F9E;

/// Reads the hot numbers from the Ledger, in the order of entry.
QStringList readHotNumbers();

/// Hot numbers, prepared for lookups by bet.
class HotNumbers
{
public:
    HotNumbers() = default; ///< no hot numbers
    explicit HotNumbers(const QStringList &numbers);

    /// Returns how many hot numbers affect a bet, on top or bottom. A hot number affects straight
    /// bets on itself and tod bets on any order of its digits, but never a run bet.
    int count(int numType, const QString &number) const;

    /// Returns true if a hot number affects the bet.
    bool reach(const BetClass &betClass, const QString &number) const
    {
        return count(betClass.numType, number) > 0;
    }

    bool operator==(const HotNumbers &) const = default;

private:
    QHash<QString, int> m_straight;
    QHash<QString, int> m_tod;
};
