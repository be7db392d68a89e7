// SPDX-License-Identifier: MIT
// The board: for each class of bet every number bought in the draw with the money on it, heaviest
// first, and the most that one winning number could cost. Reads the Ledger, writes nothing.
#pragma once

#include "entry/betgrid.h"
#include "entry/hotnumbers.h"
#include "ledger/ledgermemo.h"
#include "platform/progressbar.h"

/// Columns of a board behind those that are shown, with column 0 the class of each row: its
/// numType, its num23 and "True" for top or "False" for bottom.
inline constexpr int TypeColumn = 0;
inline constexpr int DigitsColumn = 3;
inline constexpr int SideColumn = 4;

/// Numbers of one class with their money, the most money first. Parameters: num23, updown, numType;
/// the second form shows one customer and takes his name as the fourth.
QString boardStatement(bool filtered);

/// The customer whom a name keyed in part finds: the one with the lowest key. Takes the name
/// between two "%".
QString customerStatement();

/// Names of the customers who hold a bet in the draw, in Thai order. Uses RecordsetB.
QStringList readBuyers();

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

    /// Loads a board, of the whole book or of the filter's customer. A hot number shows half its
    /// money, which may send it down the board; the total in the header counts it in full. Raises
    /// "Overflow" when that total leaves 32 bits, and shows the progress unless there is nothing
    /// to load. Uses RecordsetA and RecordsetB.
    void load(int at, bool filtered, ProgressBar &progress);

    /// Reads SavedTicketTotal; 0 without a discount. Uses RecordsetA.
    void readSavedTicketTotal();

    /// Takes a board's total from its header into BoardSums.
    void takeTotal(int at);

private:
    void fillRows(int at, ProgressBar &progress);

    qint32 BoardTotal = 0; ///< of the board being loaded
    LedgerMemo<HotNumbers> m_hotNumbers;
};
