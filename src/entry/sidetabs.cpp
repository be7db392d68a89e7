// SPDX-License-Identifier: MIT
#include "entry/sidetabs.h"

#include "widgets/spread.h"
#include "widgets/tabstrip.h"

void showSide(TabStrip &tabs, const std::array<Spread *, ClassCount> &grids)
{
    const bool top = tabs.tab() == TopTab;
    // Hiding the grid with the focus would move the focus through the other grids, and Form1 would
    // take the last of them for the one that the user selected.
    for (int at = 0; at < ClassCount; ++at) {
        if ((at < TopClassCount) != top && grids[at]->hasFocus())
            tabs.setFocus();
    }
    for (int at = 0; at < ClassCount; ++at)
        grids[at]->setVisible((at < TopClassCount) == top);
}
