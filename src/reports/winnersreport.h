// SPDX-License-Identifier: MIT
// The winners list on paper: who is paid how much for which number.
#pragma once

#include "reports/gridreport.h"

/// What the draw check shows when its list is printed. The grid has the seven columns of the
/// winners list.
struct WinnersOnScreen
{
    const SpreadModel &winners;
    QString payout;         ///< total as the label shows it, with its commas
    bool ofCutBook = false; ///< true: the money laid off was checked, so there is no total
};

class ActiveReport1 : public GridReport
{
public:
    explicit ActiveReport1(WinnersOnScreen shown);

protected:
    void ActiveReport_Initialize() override;

private:
    WinnersOnScreen m_shown;
};
