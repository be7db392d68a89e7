// SPDX-License-Identifier: MIT
// The closed draws, as the history lists them.
#pragma once

#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

/// Columns of the history. Column 0 holds the key of the draw; column 7 stays empty.
inline constexpr int LogDateColumn = 1;
inline constexpr int LogTopColumn = 2;
inline constexpr int LogBottomColumn = 3;
inline constexpr int LogBottomTwoColumn = 4;
inline constexpr int LogPayoutColumn = 5;
inline constexpr int LogProfitColumn = 6;

/// Lists all closed draws, the newest day first, of one day the one closed last. The money shows
/// as "#,##", so that no payout is an empty cell.
void Loaddata(SpreadModel &grid, ProgressBar &progress);

/// Takes the draw of this key out of the history.
void deleteClosedDraw(qint32 key);
