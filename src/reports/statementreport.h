// SPDX-License-Identifier: MIT
// Report of the eight boards side by side: the whole book, or the statement of one customer.
#pragma once

#include "reports/gridreport.h"

#include <functional>

/// The content of the board and of the customer strip.
struct BoardsOnScreen
{
    QList<const SpreadModel *> boards;         ///< the eight boards, in the order of BetClasses
    std::function<QString(int tab)> selectTab; ///< selects a tab of the board, returns its caption
    QString customer = {};                     ///< name in the strip; "" for the whole book
    QString discount = {};                     ///< discount in the strip, in baht
};

/// Prints the boards. Selects both tabs of the board to read their captions and leaves the bottom
/// one selected.
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
