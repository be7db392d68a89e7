// SPDX-License-Identifier: MIT
// The grid of one class of bets, numbers with their money: on the ticket and on the board alike.
#pragma once

#include "entry/vocabulary.h"
#include "widgets/spreadmodel.h"

/// Header rows: caption, total, column titles.
inline constexpr int CaptionRow = FirstHeaderRow;
inline constexpr int TotalRow = FirstHeaderRow + 1;
inline constexpr int TitleRow = FirstHeaderRow + 2;

/// The columns that a person sees.
inline constexpr int NumberColumn = 1;
inline constexpr int AmountColumn = 2;

/// Totals of the eight grids in whole baht, in the order of BetClasses.
using GridTotals = std::array<qint32, ClassCount>;

/// Empties @p grid and writes the headers of a class; the total reads "0". @p columns counts the
/// two columns and those hidden behind them.
void setupBetGrid(SpreadModel &grid, const BetClass &betClass, int columns);

/// Sum of the top grids, of the bottom ones, of all; raises "Overflow".
qint32 topTotal(const GridTotals &totals);
qint32 bottomTotal(const GridTotals &totals);
qint32 sumTotal(const GridTotals &totals);
