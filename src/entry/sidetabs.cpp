// SPDX-License-Identifier: MIT
#include "entry/sidetabs.h"

#include "widgets/spread.h"
#include "widgets/tabstrip.h"

void showSide(TabStrip &tabs, const std::array<Spread *, ClassCount> &grids)
{
    const bool top = tabs.tab() == TopTab;
    // A grid that is hidden would pass its focus from grid to grid, each noting that it was touched.
    for (int at = 0; at < ClassCount; ++at) {
        if ((at < TopClassCount) != top && grids[at]->hasFocus())
            tabs.setFocus();
    }
    for (int at = 0; at < ClassCount; ++at)
        grids[at]->setVisible((at < TopClassCount) == top);
}
