// SPDX-License-Identifier: MIT
#include "entry/vocabulary.h"

BetKind kindOfCaption(const QString &caption)
{
    for (const KindEntry &entry : KindEntries) {
        if (caption == QStringView(entry.caption))
            return entry.kind;
    }
    return BetKind::NoKind;
}

bool isTurnKind(BetKind kind)
{
    return kind == BetKind::TurnTop || kind == BetKind::TurnBottom;
}

QString rearranged(const QString &number, const char *order)
{
    QString other;
    for (const char *place = order; *place != '\0'; ++place)
        other += number[*place - '0'];
    return other;
}
