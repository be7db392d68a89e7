// SPDX-License-Identifier: MIT
// The check of a draw: the winners' grid, the two amounts beneath it, and the one row of tblTrue
// that keeps them for the history.
#pragma once

#include "drawcheck/winners.h"
#include "widgets/progressbar.h"

/// What the page of the draw check holds. Its members are public as the page shows them and the
/// report prints them; the amounts are kept as the texts that are shown, and the settlement
/// reckons with these.
class DrawCheck
{
public:
    DrawCheck() { SetupSpread(); }

    SpreadModel winners;
    QString Label19 = QStringLiteral("0"); ///< payout to all winners
    QString Label21 = QStringLiteral("0"); ///< profit after it, a loss with a leading minus
    Book book = Book::Ours;

    /// Reads the discounts of all tickets saved up to now. Whatever fails, they count as 0.
    void readDiscounts();

    /// Empties the grid.
    void SetupSpread() { setupWinners(winners); }

    /// Shows both amounts as 0.
    void zeroAmounts();

    /// Runs the check: fills the grid, sets the amounts, keeps result and money in tblTrue. Without
    /// a winner the discounts are taken off the profit, with winners they are not. A check of the
    /// lines cut out keeps nothing unless it finds no winner; then it keeps zeros. Raises "Type
    /// mismatch" where a payout of 0 is halved or summed, "Overflow" beyond 32 bits, with what was
    /// done up to then standing.
    void LoadnumberT(const ResultDigits &digits, ProgressBar &progress);

private:
    void showTakings();
    void listWinners(ProgressBar &progress);
    void Nubyod2();
    void showProfit();
    void SaveTrue(const ResultDigits &digits) const;
    void Savefalse(const ResultDigits &digits) const;

    qint32 iTotalB = 0; ///< discounts of all tickets of the draw
};
