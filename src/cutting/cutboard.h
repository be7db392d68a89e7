// SPDX-License-Identifier: MIT
// The cut numbers: the money laid off on each number, in one list for top and one for bottom. Hot
// numbers are neither marked nor halved.
#pragma once

#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

#include <array>

/// Columns of both lists.
inline constexpr int CutTypeColumn = 1;
inline constexpr int CutNumberColumn = 2;
inline constexpr int CutAmountColumn = 3;

/// Column of the total in TotalRow, which spans the columns of numbers and of amounts.
inline constexpr int CutTotalColumn = CutNumberColumn;

/// Both lists. They are empty until they are loaded.
class CutBoard
{
public:
    CutBoard();

    std::array<SpreadModel, 2> grids; ///< top, bottom

    bool isEmpty() const; ///< returns true if both lists are empty

    /// Load one list: straight, tod, run, each with the longer numbers first. Throw "Overflow" when
    /// the total exceeds 32 bits and "Invalid use of Null" for a number whose money is NULL. The
    /// caller finishes the progress bar.
    void LoadNumcutup(ProgressBar &progress) { load(0, true, progress); }
    void LoadNumcutdown(ProgressBar &progress) { load(1, false, progress); }

private:
    void SetupSpread();
    void load(size_t list, bool updown, ProgressBar &progress);

    qint32 NumcutTotal = 0; ///< total of the list being loaded
};
