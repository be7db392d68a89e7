// SPDX-License-Identifier: MIT
// The cut numbers: what has been laid off, number by number, top and bottom each in a list. Real
// money throughout: hot numbers are neither marked nor halved.
#pragma once

#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

#include <array>

/// Columns of both lists.
inline constexpr int CutTypeColumn = 1;
inline constexpr int CutNumberColumn = 2;
inline constexpr int CutAmountColumn = 3;

/// In TotalRow the total spans the columns of the numbers and of the money.
inline constexpr int CutTotalColumn = CutNumberColumn;

/// Both lists, empty until they are loaded.
class CutBoard
{
public:
    CutBoard();

    std::array<SpreadModel, 2> grids; ///< top, bottom

    bool isEmpty() const; ///< true while nothing is listed

    /// Load one list: straight, tod, run, in each the longer numbers first. Raise "Overflow" when
    /// a total leaves 32 bits.
    void LoadNumcutup(ProgressBar &progress) { load(0, true, progress); }
    void LoadNumcutdown(ProgressBar &progress) { load(1, false, progress); }

private:
    void SetupSpread();
    void load(size_t list, bool updown, ProgressBar &progress);

    qint32 NumcutTotal = 0; ///< of the list being loaded
};
