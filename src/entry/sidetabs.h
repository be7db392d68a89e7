// SPDX-License-Identifier: MIT
// The tab strip that switches between the top and the bottom grids, on the ticket and on the
// board.
#pragma once

#include "entry/vocabulary.h"

class Spread;
class TabStrip;

inline constexpr int BottomTab = 0;
inline constexpr int TopTab = 1;

/// Shows the grids of the selected tab and hides the others.
void showSide(TabStrip &tabs, const std::array<Spread *, ClassCount> &grids);
