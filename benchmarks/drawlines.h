// SPDX-License-Identifier: MIT
// Bet lines to fill a Ledger with.
#pragma once

#include "barefile.h"

inline constexpr int CustomerCount = 200;

/// Returns a line of a class and customer. Its number is the last digits of @p digits.
inline BetLine betLine(size_t betClass, int customer, int digits)
{
    const BetClass &asked = BetClasses[betClass];
    return {&asked, customer, QByteArray::number(1000 + digits % 1000).right(asked.num23)};
}

/// Returns the lines of a draw, with mixed classes and numbers. Fifty consecutive lines belong to
/// the same customer, as in a ticket.
inline std::vector<BetLine> drawLines(int count)
{
    std::vector<BetLine> lines;
    lines.reserve(size_t(count));
    for (int at = 0; at < count; ++at) {
        const int customer = 1 + at / 50 % CustomerCount;
        lines.push_back(betLine(size_t(at % ClassCount), customer, at / ClassCount * 379));
    }
    return lines;
}
