// SPDX-License-Identifier: MIT
// One function for each print button. Each runs a report, which reads its grids, and then shows the
// pages in a modal dialog over @p opener, the window of the button.
#pragma once

#include "reports/statementreport.h"
#include "reports/winnersreport.h"

class QWidget;

/// Shows the winners list of the draw check in FPrint1.
void showWinners(const WinnersOnScreen &shown, QWidget *opener);

/// Shows the eight boards in Fprint2, as the statement of a customer if they are filtered.
void showStatement(const BoardsOnScreen &shown, QWidget *opener);

/// Shows the top and the bottom grid of CutBoard in Fprint3.
void showCutNumbers(const SpreadModel &top, const SpreadModel &bottom, QWidget *opener);
