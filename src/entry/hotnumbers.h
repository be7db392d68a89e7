// SPDX-License-Identifier: MIT
// Hot numbers (เลขดัง), on which the agent pays half the prize: which bets they reach.
#pragma once

#include <QStringList>

/// The hot numbers, the one entered first in front. Uses RecordsetB.
QStringList hotNumbers();

/// The spellings of a tod bet of @p digits digits, 2 or 3, that @p hot reaches. A hot number of
/// another length reaches a bet that is spelled as it stands.
QStringList todBetsReached(const QString &hot, int digits);
