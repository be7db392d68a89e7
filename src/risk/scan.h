// SPDX-License-Identifier: MIT
// The risk scan: the numbers of one side on which other bets depend, so that one result would hit
// several classes at once. It weighs no rates: one related line makes a number risky.
#pragma once

#include "risk/relations.h"
#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

/// Columns of the scan.
namespace ScanColumn {
inline constexpr int Related = 0; ///< the related lines, one to a line of text; not shown
inline constexpr int Type = 1;
inline constexpr int Number = 2;
inline constexpr int Amount = 3;
inline constexpr int Risk = 4;    ///< how many lines are related, with "%" behind
inline constexpr int Inspect = 5; ///< the two buttons of a row
inline constexpr int Cut = 6;
} // namespace ScanColumn

/// The row handed to the inspector.
extern qint32 ScanRow;

/// The scan of one side and the grid that shows it.
class RiskScan
{
public:
    RiskScan();

    SpreadModel grid;

    /// Fills the grid with the risky numbers of a side: those with the most related lines first,
    /// of equal ones that with the most money. The money of hot numbers is halved. If the book
    /// cannot be read the grid stays empty; without the hot numbers nothing is halved. False if
    /// something is bought on that side and nothing of it is risky. Shows the progress.
    bool run(bool updown, ProgressBar &progress);

private:
    void SetupSpread();
    QList<ScanLine> fill(bool updown, ProgressBar &progress);
    int relate(bool updown, const QList<ScanLine> &lines);
};
