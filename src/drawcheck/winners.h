// SPDX-License-Identifier: MIT
// Who has won: one statement finds the winning lines of a book, and each becomes a row of the
// grid with the money that it is paid.
#pragma once

#include "drawcheck/result.h"
#include "entry/hotnumbers.h"
#include "widgets/spreadmodel.h"

#include <QVariant>

/// Which lines are checked.
enum class Book {
    Ours,   ///< "เลข(ของเรา)", those that stayed with the agent: tblNumber
    CutOut, ///< "เลข(ที่ถูกคัดออก)", those laid off: tblNumberCut
};

/// Columns of the winners' grid. The text of WinPayoutColumn is the only store of a payout.
inline constexpr int WinKindColumn = 1;
inline constexpr int WinNumberColumn = 2;
inline constexpr int WinPercentColumn = 3;
inline constexpr int WinStakeColumn = 4;
inline constexpr int WinPayoutColumn = 5;
inline constexpr int WinNameColumn = 6;
inline constexpr int WinTelephoneColumn = 7;

/// A statement and the values that are bound to it.
struct BoundStatement
{
    QString sql;
    QVariantList values;
};

/// The search for the winning lines: one row for each customer, class and number, with the sum
/// of the stakes, by name, top lines first. Lines of a customer who is gone are not found.
BoundStatement winnerSearch(Book book, const ResultDigits &digits);

/// Empties the grid and writes its header.
void setupWinners(SpreadModel &grid);

/// Writes the current row of RecordsetA, opened with winnerSearch(), to @p row of the grid: the
/// stake paid at the rate of its class. A payout of 0 is an empty text.
void writeWinner(SpreadModel &grid, int row);

/// Halves the payout of @p row as often as hot numbers reach the current row of RecordsetA, each
/// time from the text that the time before left. Raises "Type mismatch" for an empty payout and
/// "Overflow" for one beyond 32 bits.
void halvePayout(SpreadModel &grid, int row, const HotNumbers &hot);
