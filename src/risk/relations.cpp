// SPDX-License-Identifier: MIT
#include "risk/relations.h"

#include "entry/vocabulary.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

/// What ties a number to a longer one.
enum class Tie {
    Holds,    ///< the longer one holds its first and its last digit, in any place
    EndsWith, ///< the longer one ends with it
    AnyOrder, ///< the same digits in any order
};

struct Relation
{
    bool updown;
    int num23; ///< of the number, with its numType
    int numType;
    Tie tie;
    int relatedNum23;
    bool withTod; ///< relates to tod lines beside the straight ones
};

// On top every kind of bet is held against the three digits, at the bottom only the run, and
// against two: that is what the results of each side can hit at once.
constexpr std::array Relations{
    Relation{true, 1, Run, Tie::Holds, 3, false},
    Relation{true, 2, Tod, Tie::Holds, 3, true},
    Relation{true, 2, Straight, Tie::EndsWith, 3, true},
    Relation{true, 3, Tod, Tie::AnyOrder, 3, false},
    Relation{false, 1, Run, Tie::Holds, 2, false},
};

QString sorted(QString digits)
{
    std::sort(digits.begin(), digits.end());
    return digits;
}

bool isTied(Tie tie, const QString &number, const QString &longer)
{
    switch (tie) {
    case Tie::Holds:
        return longer.contains(number.front()) && longer.contains(number.back());
    case Tie::EndsWith:
        return longer.endsWith(number);
    case Tie::AnyOrder:
        return sorted(longer) == sorted(number);
    }
    return false;
}

const Relation *relationOf(bool updown, int num23, int numType)
{
    for (const Relation &each : Relations) {
        if (each.updown == updown && each.num23 == num23 && each.numType == numType)
            return &each;
    }
    return nullptr;
}

} // namespace

bool isScanned(bool updown, int num23, int numType)
{
    return relationOf(updown, num23, numType) != nullptr;
}

RelatedLines::RelatedLines(bool updown, QList<ScanLine> lines)
    : m_updown(updown), m_lines(std::move(lines))
{
    std::sort(m_lines.begin(), m_lines.end(), [](const ScanLine &left, const ScanLine &right) {
        return std::tie(left.num23, left.numType, left.numValue)
               < std::tie(right.num23, right.numType, right.numValue);
    });
}

QList<ScanLine> RelatedLines::of(const ScanLine &line) const
{
    const Relation *relation = relationOf(m_updown, line.num23, line.numType);
    QList<ScanLine> related;
    if (!relation || line.numValue.isEmpty())
        return related;
    for (const ScanLine &other : m_lines) {
        const bool counts =
            other.numType == Straight || (other.numType == Tod && relation->withTod);
        if (other.num23 == relation->relatedNum23 && counts
            && isTied(relation->tie, line.numValue, other.numValue))
            related += other;
    }
    return related;
}
