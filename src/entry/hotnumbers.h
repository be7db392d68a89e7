// SPDX-License-Identifier: MIT
// Hot numbers (เลขดัง), on which the agent pays half the prize: which bets they reach.
#pragma once

#include "entry/vocabulary.h"

#include <QHash>
#include <QRgb>
#include <QStringList>

/// Ground of what pays half because of a hot number: a number on the board, a winner's money.
inline constexpr QRgb HotColor = 0xD79F9E;

/// The hot numbers, the one entered first in front.
QStringList readHotNumbers();

/// Hot numbers, ready to be asked about any bet.
class HotNumbers
{
public:
    HotNumbers() = default; ///< none
    explicit HotNumbers(const QStringList &numbers);

    /// How many of them reach a bet: a straight one by the number itself, a tod one by any order of
    /// its digits, top and bottom alike. A run is never reached.
    int count(int numType, const QString &number) const;

    bool reach(const BetClass &betClass, const QString &number) const
    {
        return count(betClass.numType, number) > 0;
    }

    bool operator==(const HotNumbers &) const = default;

private:
    QHash<QString, int> m_straight;
    QHash<QString, int> m_tod;
};
