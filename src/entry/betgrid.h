// SPDX-License-Identifier: MIT
// The grid of one class of bets, on the ticket and on the board: numbers and their amounts.
#pragma once

#include "entry/vocabulary.h"
#include "widgets/spreadmodel.h"

/// The header rows of a grid.
inline constexpr int CaptionRow = FirstHeaderRow;
inline constexpr int TotalRow = FirstHeaderRow + 1;
inline constexpr int TitleRow = FirstHeaderRow + 2;

/// The visible columns.
inline constexpr int NumberColumn = 1;
inline constexpr int AmountColumn = 2;

/// Totals of the eight grids in whole baht, in the order of BetClasses.
using GridTotals = std::array<qint32, ClassCount>;

/// Empties @p grid and writes the headers of a class, with a total of "0". @p columns is the number
/// of columns, the two visible ones and the hidden ones after them.
void setupBetGrid(SpreadModel &grid, const BetClass &betClass, int columns);

/// Returns the total of the top grids. Like the next two, throws "Overflow" beyond 32 bits.
qint32 topTotal(const GridTotals &totals);
qint32 bottomTotal(const GridTotals &totals); ///< total of the bottom grids
qint32 sumTotal(const GridTotals &totals);    ///< total of all grids
