// SPDX-License-Identifier: MIT
#include "risk/relations.h"

#include "entry/vocabulary.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

/// How a number has to match another one to be related to it.
enum class Match {
    Contains, ///< the other one contains its first and last digit, anywhere
    EndsWith, ///< the other one ends with it
    AnyOrder, ///< both have the same digits, in any order
};

struct Relation
{
    bool updown;
    int num23; ///< of the number itself
    int numType;
    Match match;
    int relatedNum23;
    bool withTod; ///< straight and tod lines are related, otherwise only straight ones
};

// All bets on top depend on the three digits of the top number. At the bottom, only runs and bets
// on two digits depend on the same digits.
constexpr std::array Relations{
    Relation{true, 1, Run, Match::Contains, 3, false},
    Relation{true, 2, Tod, Match::Contains, 3, true},
    Relation{true, 2, Straight, Match::EndsWith, 3, true},
    Relation{true, 3, Tod, Match::AnyOrder, 3, false},
    Relation{false, 1, Run, Match::Contains, 2, false},
};

QString sorted(QString digits)
{
    std::sort(digits.begin(), digits.end());
    return digits;
}

bool matches(Match match, const QString &number, const QString &other)
{
    switch (match) {
    case Match::Contains:
        return other.contains(number.front()) && other.contains(number.back());
    case Match::EndsWith:
        return other.endsWith(number);
    case Match::AnyOrder:
        return sorted(other) == sorted(number);
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
            && matches(relation->match, line.numValue, other.numValue))
            related += other;
    }
    return related;
}
