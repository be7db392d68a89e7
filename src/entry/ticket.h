// SPDX-License-Identifier: MIT
// The ticket being keyed: eight small grids whose cells are the bets, and the parts of the line
// keyed last. Nothing of it is in the Ledger before it is saved.
#pragma once

#include "entry/betgrid.h"

struct Ticket
{
    Ticket();

    /// Grid of a class, 0 to 7 in the order of BetClasses. A number stands in it at most once,
    /// the newest in row 1; column 2 is its amount in the format "#,##".
    std::array<SpreadModel, ClassCount> grids;

    QString KeyedNumber;     ///< left of the first dash of the keyed line
    QString KeyedAmount;     ///< right of it
    QString KeyedTryAmount;  ///< for the kinds with two amounts, right of the second dash
    bool ShowTopTab = false; ///< set by a builder once a line passed: true shows the top tab
    std::array<qint32, 6> FoundRow{}; ///< rows that a builder's searches gave, or -1

    bool isEmpty() const; ///< true while no grid has a row

    /// Empties the eight grids and writes their headers; totals read "0".
    void SetupSpread();

    /// Adds an amount to a number's row, or inserts the number at row 1 when @p found is
    /// negative. @p found is what an earlier search of column 1 gave.
    void writeLine(int grid, int found, const QString &number, const QString &amount);

    /// Searches the number, keeps its row in FoundRow[@p slot], and writes the line.
    void AddLine(int grid, const QString &number, const QString &amount, int slot = 0);

    /// Writes each grid's total to its header and gives them. Raises "Overflow" when one leaves
    /// 32 bits; the grids before it have their totals by then.
    GridTotals totalGrids();
};

/// Discount money of a ticket: the total times the percent, as "#,##". Both are texts of fields;
/// raises "Type mismatch" when one is empty.
QString discountMoney(const QString &total, const QString &percent);
