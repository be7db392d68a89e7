// SPDX-License-Identifier: MIT
// One row of the risk scan in full: what was bought on the number and what it would cost.
#pragma once

#include "widgets/spreadmodel.h"

#include <optional>

/// What the inspector shows of a row, all of it as texts.
struct Inspection
{
    QString heading; ///< class and number
    QString bought;
    std::optional<QString> loss; ///< payout if the number wins; nothing for a class without a rule
    QString risk;
    QString related; ///< the related lines
};

/// Reads a row of the scan's grid. The loss is that of the row alone, from the amount that the scan
/// shows and the rates in memory; CutOrigin says which side was scanned.
Inspection inspect(const SpreadModel &scan, int row);
