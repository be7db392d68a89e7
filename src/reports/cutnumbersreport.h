// SPDX-License-Identifier: MIT
// The money laid off, by number, on paper: top on the left, bottom on the right.
#pragma once

#include "reports/gridreport.h"

/// Reads the two grids of the cut numbers board, top and bottom.
class ActiveReport3 : public GridReport
{
public:
    ActiveReport3(const SpreadModel &top, const SpreadModel &bottom);

protected:
    void ActiveReport_Initialize() override;
};
