// SPDX-License-Identifier: MIT
// The eight boards side by side on paper: the whole book, or the statement of one customer.
#pragma once

#include "reports/gridreport.h"

#include <functional>

/// What the board and the customer strip show when the boards are printed.
struct BoardsOnScreen
{
    QList<const SpreadModel *> boards;         ///< the eight, in the order of the classes
    std::function<QString(int tab)> selectTab; ///< opens a tab of the board, gives its caption
    QString customer = {};                     ///< the strip's name; "" for the whole book
    QString discount = {};                     ///< the strip's discount in baht
};

/// Running it leaves the board on its bottom tab, 0.
class ActiveReport2 : public GridReport
{
public:
    explicit ActiveReport2(BoardsOnScreen shown);

protected:
    void ActiveReport_Initialize() override;

private:
    void showTotals(int begin, int end);

    BoardsOnScreen m_shown;
};
