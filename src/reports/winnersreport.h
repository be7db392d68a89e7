// SPDX-License-Identifier: MIT
// Report of the winners: who is paid how much for which number.
#pragma once

#include "reports/gridreport.h"

/// The content of the draw check. The grid has the columns of setupWinners().
struct WinnersOnScreen
{
    const SpreadModel &winners;
    QString payout;         ///< total as shown, with thousands commas
    bool ofCutBook = false; ///< laid-off bets were checked; the report then has no total
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
