// SPDX-License-Identifier: MIT
// The two sides of the eight grids, top and bottom, behind one tab strip: on the ticket and on
// the board alike.
#pragma once

#include "entry/vocabulary.h"

class Spread;
class TabStrip;

inline constexpr int BottomTab = 0;
inline constexpr int TopTab = 1;

/// Shows the grids of the tab that is selected and hides those of the other.
void showSide(TabStrip &tabs, const std::array<Spread *, ClassCount> &grids);
