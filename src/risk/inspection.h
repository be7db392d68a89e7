// SPDX-License-Identifier: MIT
// Details of a row of the risk scan: the money on the number and what it would cost.
#pragma once

#include "widgets/spreadmodel.h"

#include <optional>

/// The texts that the dialog Number shows.
struct Inspection
{
    QString heading; ///< class and number
    QString bought;
    /// Payout if the number wins. std::nullopt if the class is not scanned or the amount is empty.
    std::optional<QString> loss;
    QString risk;
    QString related; ///< the related lines
};

/// Returns the details of a row of the scan's grid. The loss is that of the row alone: its displayed
/// amount times the payout rate. CutOrigin has to be the side that was scanned.
Inspection inspect(const SpreadModel &scan, int row);
