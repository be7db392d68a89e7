// SPDX-License-Identifier: MIT
// The ticket being entered: eight grids whose cells are the bets, and the parts of the last line.
// It is not in the Ledger until saveLines() writes it.
#pragma once

#include "entry/betgrid.h"

struct Ticket
{
    Ticket();

    /// The grids in the order of BetClasses, new numbers first. Amounts are in the format "#,##".
    std::array<SpreadModel, ClassCount> grids;

    QString KeyedNumber;              ///< the line up to the first dash
    QString KeyedAmount;              ///< the part after that dash
    QString KeyedTryAmount;           ///< for turned bets, the part after the second dash
    bool ShowTopTab = false;          ///< which tab to show, set by a builder after its checks
    std::array<qint32, 6> FoundRow{}; ///< rows that a builder's searches found, or -1

    bool isEmpty() const; ///< true if no grid has a row

    /// Empties the eight grids and writes their headers, with totals of "0".
    void SetupSpread();

    /// Adds an amount to row @p found, or inserts the number as row 1 if @p found is negative.
    /// @p found is the result of SpreadModel::searchColumn() for the number.
    void writeLine(int grid, int found, const QString &number, const QString &amount);

    /// Searches the number, stores its row in FoundRow[@p slot], and calls writeLine().
    void AddLine(int grid, const QString &number, const QString &amount, int slot = 0);

    /// Writes the total of each grid to its header and returns the totals. Throws "Overflow" if
    /// one exceeds 32 bits; only the headers of the grids before it are updated then.
    GridTotals totalGrids();
};

/// Returns the discount of a ticket in the format "#,##", from the texts of the fields that show
/// its total and percentage. Throws "Type mismatch" if one is empty.
QString discountMoney(const QString &total, const QString &percent);
