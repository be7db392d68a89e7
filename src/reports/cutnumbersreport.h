// SPDX-License-Identifier: MIT
// Report of the cut numbers and their amounts, top on the left, bottom on the right.
#pragma once

#include "reports/gridreport.h"

/// Prints the top and the bottom grid of CutBoard.
class ActiveReport3 : public GridReport
{
public:
    ActiveReport3(const SpreadModel &top, const SpreadModel &bottom);

protected:
    void ActiveReport_Initialize() override;
};
