// SPDX-License-Identifier: MIT
#include "entry/vocabulary.h"

#include <algorithm>

using namespace Qt::StringLiterals;

int classOf(int num23, bool updown, int numType)
{
    for (size_t at = 0; at < BetClasses.size(); ++at) {
        const BetClass &each = BetClasses[at];
        if (each.num23 == num23 && each.updown == updown && each.numType == numType)
            return int(at);
    }
    return -1;
}

int indexOfKind(BetKind kind)
{
    const auto *found = std::ranges::find(KindEntries, kind, &KindEntry::kind);
    return int(found - KindEntries.begin());
}

BetKind kindOfCaption(const QString &caption)
{
    for (const KindEntry &entry : KindEntries) {
        if (caption == entry.caption)
            return entry.kind;
    }
    return BetKind::NoKind;
}

bool isTurnKind(BetKind kind)
{
    return kind == BetKind::TurnTop || kind == BetKind::TurnBottom;
}

QString oneWordLabel(int numType)
{
    switch (numType) {
    case Straight:
        return u"ตรง"_s;
    case Tod:
        return u"โต๊ด"_s;
    case Run:
        return u"วิ่ง"_s;
    default:
        return {};
    }
}

int numTypeOf(const QString &oneWord)
{
    for (const int numType : {Straight, Tod, Run}) {
        if (oneWordLabel(numType) == oneWord)
            return numType;
    }
    return 0;
}

QString twoPartLabel(int numType, bool updown)
{
    const bool known = std::any_of(BetClasses.begin(), BetClasses.end(), [&](const BetClass &each) {
        return each.numType == numType && each.updown == updown;
    });
    return known ? oneWordLabel(numType) + (updown ? u"-บน"_s : u"-ล่าง"_s) : QString();
}
