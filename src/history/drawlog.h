// SPDX-License-Identifier: MIT
// Lists and deletes closed draws.
#pragma once

#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

/// Columns of the history. Column 0 has the key of the draw; column 7 is empty.
inline constexpr int LogDateColumn = 1;
inline constexpr int LogTopColumn = 2;
inline constexpr int LogBottomColumn = 3;
inline constexpr int LogBottomTwoColumn = 4;
inline constexpr int LogPayoutColumn = 5;
inline constexpr int LogProfitColumn = 6;

/// Lists all closed draws, the latest date first, and of one date the draw closed last first.
/// Amounts are in the format "#,##", so zero is an empty cell.
void Loaddata(SpreadModel &grid, ProgressBar &progress);

/// Deletes the closed draw with this key.
void deleteClosedDraw(qint32 key);
