// SPDX-License-Identifier: MIT
// The draw check: the grid of winners, the two amounts below it, and the row of tblTrue that stores
// result and amounts for the history.
#pragma once

#include "drawcheck/winners.h"
#include "widgets/progressbar.h"

/// The data of the draw check page. Its members are public, since the page shows them and the
/// report prints them. They keep the amounts as displayed texts, from which further amounts are
/// calculated; tblTrue gets numbers.
class DrawCheck
{
public:
    DrawCheck() { SetupSpread(); }

    SpreadModel winners;
    QString Label19 = QStringLiteral("0"); ///< total payout
    QString Label21 = QStringLiteral("0"); ///< profit; a loss has a leading minus
    Book book = Book::Ours;

    /// Reads the discounts of all saved tickets. If that fails, they count as 0.
    void readDiscounts();

    /// Empties the grid and writes its header.
    void SetupSpread() { setupWinners(winners); }

    /// Sets both amounts to "0".
    void zeroAmounts();

    /// Checks the book against a result: fills the grid, sets the amounts and stores result and
    /// amounts in tblTrue. The discounts reduce the profit only if there is no winner. A check of
    /// Book::CutOut stores only a result without a winner, with amounts of 0; with winners, both
    /// labels become "เลขคัดออก" instead of an amount. Call zeroAmounts() first. Throws "Type
    /// mismatch" if it calculates with a displayed amount of 0, which is "", and "Overflow" beyond
    /// 32 bits; what was done before the error is not undone.
    void LoadnumberT(const ResultDigits &digits, ProgressBar &progress);

private:
    void showTakings();
    void listWinners(ProgressBar &progress);
    void Nubyod2();
    void showProfit();
    void SaveTrue(const ResultDigits &digits) const;
    void Savefalse(const ResultDigits &digits) const;

    qint32 iTotalB = 0; ///< discounts of all saved tickets
};
