// SPDX-License-Identifier: MIT
// The risk scan: finds the numbers of one side that one result could hit together with others.
// Rates do not matter: one related line makes a number risky.
#pragma once

#include "risk/relations.h"
#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

#include <vector>

/// Columns of the scan.
namespace ScanColumn {
inline constexpr int Related = 0; ///< hidden: the related lines, one per line of text
inline constexpr int Type = 1;
inline constexpr int Number = 2;
inline constexpr int Amount = 3;
inline constexpr int Risk = 4;    ///< number of related lines, followed by "%"
inline constexpr int Inspect = 5; ///< button
inline constexpr int Cut = 6;     ///< button
} // namespace ScanColumn

/// The row that the dialog Number shows.
extern qint32 ScanRow;

/// The scan of one side and the grid that shows it.
class RiskScan
{
public:
    RiskScan();

    SpreadModel grid;

    /// Fills the grid with the risky numbers of a side, ordered by their number of related lines,
    /// then by money. The money of hot numbers is halved. If the book cannot be read, the grid is
    /// empty; if the hot numbers cannot be read, no money is halved. Returns false if the side has
    /// bets, but no risky number. Starts the progress bar; the caller hides it.
    bool run(bool updown, ProgressBar &progress);

private:
    void SetupSpread();
    QList<ScanLine> fill(bool updown, ProgressBar &progress);
    std::vector<double> relate(bool updown, const QList<ScanLine> &lines);
};
