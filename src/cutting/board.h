// SPDX-License-Identifier: MIT
// The board: for each class of bet every number bought in the draw with the money on it, heaviest
// first, and the most that one winning number could cost. Reads the Ledger, writes nothing.
#pragma once

#include "entry/betgrid.h"
#include "entry/hotnumbers.h"
#include "widgets/progressbar.h"

#include <optional>
#include <vector>

/// Columns of a board behind those that are shown, with column 0 the class of each row: its
/// numType, its num23 and "True" for top or "False" for bottom.
inline constexpr int TypeColumn = 0;
inline constexpr int DigitsColumn = 3;
inline constexpr int SideColumn = 4;

/// A number of a class and the money on it.
struct NumberMoney
{
    QString number;
    std::optional<double> money; ///< whole baht; nothing if none of its lines holds any
};

/// Numbers with their money, the most money first, equal money by number.
using BoardLines = std::vector<NumberMoney>;

/// Numbers of the whole book in one class.
BoardLines readBoard(const BetClass &betClass);

/// Numbers of one customer in all classes. Blanks around the name are ignored; wild cards in it
/// count. All eight boards of a filter come from this one statement.
std::array<BoardLines, ClassCount> readCustomerBoards(const QString &name);

/// Discount percent of the customer whom a name keyed in part finds: the one with the lowest key.
/// Nothing if there is none or the Ledger cannot be read.
std::optional<QString> customerPercent(const QString &name);

/// Names of the customers who hold a bet in the draw, in Thai order, each once.
QStringList readBuyers();

/// The eight boards, what their heaviest numbers would cost, and the totals of the book.
struct Board
{
    Board();

    /// Grid of a class, 0 to 7 in the order of BetClasses.
    std::array<SpreadModel, ClassCount> grids;

    /// What the heaviest number of a class would cost if it won, in whole baht as "#,##".
    std::array<QString, ClassCount> estimates;

    GridTotals BoardSums{}; ///< header total of each board
    qint32 TopSum = 0;      ///< stays as it was while no top number has money
    qint32 BottomSum = 0;
    QString FilterName;          ///< customer of the filter
    qint32 SavedTicketTotal = 0; ///< discount money of all saved tickets, read with the page

    bool isEmpty() const; ///< true while no board has a row

    /// Empties a board.
    void SetupSpread(int at);

    /// Fills a board with @p lines. A hot number shows half its money, which may send it down the
    /// board; the total in the header counts it in full. Raises "Overflow" when that total leaves
    /// 32 bits and "Invalid use of Null" for a number without money; the rows above it stay. Shows
    /// the progress unless there is nothing to load.
    void load(int at, const BoardLines &lines, const HotNumbers &hotNumbers, ProgressBar &progress);

    /// Takes a board's total from its header into BoardSums.
    void takeTotal(int at);

private:
    void fillRows(int at, const BoardLines &lines, const HotNumbers &hotNumbers,
                  ProgressBar &progress);

    qint32 BoardTotal = 0; ///< of the board being loaded
};
