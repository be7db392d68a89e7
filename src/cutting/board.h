// SPDX-License-Identifier: MIT
// The board: for each class of bet, all numbers bought in the draw with their money, most money
// first, and what the first one would cost if it won. Reads the Ledger, writes nothing.
#pragma once

#include "entry/betgrid.h"
#include "entry/hotnumbers.h"
#include "widgets/progressbar.h"

#include <optional>
#include <vector>

/// Columns of a board that are hidden. They store the class of each row: numType, num23, and "True"
/// for top or "False" for bottom.
inline constexpr int TypeColumn = 0;
inline constexpr int DigitsColumn = 3;
inline constexpr int SideColumn = 4;

/// A number of a class and the money on it.
struct NumberMoney
{
    QString number;
    std::optional<double> money; ///< whole baht; std::nullopt if all its lines have NULL
};

/// Numbers with their money: most money first, equal money by number.
using BoardLines = std::vector<NumberMoney>;

/// Returns the numbers of the whole book in one class.
BoardLines readBoard(const BetClass &betClass);

/// Returns the numbers of one customer in all classes, read by one statement. Spaces around the
/// name are ignored. "%" and "_" in it are the wildcards of LIKE.
std::array<BoardLines, ClassCount> readCustomerBoards(const QString &name);

/// Returns the discount in percent of the customer whose name contains @p name, of several the one
/// with the lowest key. Returns std::nullopt if there is none or the Ledger cannot be read.
std::optional<QString> customerPercent(const QString &name);

/// Returns the names of the customers with a bet in the draw, in Thai order. Names that differ only
/// in case are listed once.
QStringList readBuyers();

/// The eight boards, their estimated largest losses, and the totals of the book.
struct Board
{
    Board();

    /// The grid of each class, in the order of BetClasses.
    std::array<SpreadModel, ClassCount> grids;

    /// What the first number of each class would cost if it won, as formatBaht() writes it.
    std::array<QString, ClassCount> estimates;

    GridTotals BoardSums{};      ///< header total of each board
    qint32 TopSum = 0;           ///< keeps its last value when the top total becomes 0
    qint32 BottomSum = 0;        ///< keeps its last value when the bottom total becomes 0
    QString FilterName;          ///< customer of the filter
    qint32 SavedTicketTotal = 0; ///< discounts of all saved tickets; read at opening, not shown

    bool isEmpty() const; ///< returns true if no board has a row

    /// Empties a board and writes its header.
    void SetupSpread(int at);

    /// Fills a board with @p lines and sets its estimate. A hot number is listed with half its
    /// money, but counts in full in the total in the header. Throws "Overflow" when that total
    /// exceeds 32 bits and "Invalid use of Null" for a number whose money is NULL; the rows before
    /// it are then filled. Starts the progress bar unless there are no lines; the caller finishes
    /// it.
    void load(int at, const BoardLines &lines, const HotNumbers &hotNumbers, ProgressBar &progress);

    /// Sets BoardSums[at] to the total in the board's header.
    void takeTotal(int at);

private:
    void fillRows(int at, const BoardLines &lines, const HotNumbers &hotNumbers,
                  ProgressBar &progress);

    qint32 BoardTotal = 0; ///< total of the board being loaded
};
