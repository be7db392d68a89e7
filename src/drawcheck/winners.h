// SPDX-License-Identifier: MIT
// The winners: one statement finds the winning lines of a book, and each of its rows becomes a row
// of the grid, with the payout.
#pragma once

#include "drawcheck/result.h"
#include "entry/hotnumbers.h"
#include "widgets/spreadmodel.h"

#include <QVariant>

/// The book to check.
enum class Book {
    Ours,   ///< "เลข(ของเรา)": the agent's own lines, tblNumber
    CutOut, ///< "เลข(ที่ถูกคัดออก)": the lines laid off, tblNumberCut
};

/// Columns of the grid of winners. A payout is stored only as the text of WinPayoutColumn.
inline constexpr int WinKindColumn = 1;
inline constexpr int WinNumberColumn = 2;
inline constexpr int WinPercentColumn = 3;
inline constexpr int WinStakeColumn = 4;
inline constexpr int WinPayoutColumn = 5;
inline constexpr int WinNameColumn = 6;
inline constexpr int WinTelephoneColumn = 7;

/// A statement and its bound values.
struct BoundStatement
{
    QString sql;
    QVariantList values;
};

/// Returns the statement that finds the winning lines: a row for each customer, class and number
/// with the sum of its stakes, ordered by name, then top before bottom. Lines without a row in
/// tblMember are not found.
BoundStatement winnerSearch(Book book, const ResultDigits &digits);

/// Empties the grid and writes its header.
void setupWinners(SpreadModel &grid);

/// Writes the current row of RecordsetA, opened with winnerSearch(), to @p row of the grid. The
/// payout is the stake times the rate of its class; the text of 0 is "".
void writeWinner(SpreadModel &grid, int row);

/// Halves the payout in @p row once for each hot number that applies to the current row of
/// RecordsetA. Each step starts from the displayed text, so it rounds. Throws "Type mismatch" for
/// an empty payout and "Overflow" for one beyond 32 bits.
void halvePayout(SpreadModel &grid, int row, const HotNumbers &hot);
