// SPDX-License-Identifier: MIT
// Opens the reports: one call for each print button. Each shows its viewer modally over the
// window of the button, whose grids therefore stay as they are while the report reads them.
#pragma once

#include "reports/statementreport.h"
#include "reports/winnersreport.h"

class QWidget;

/// The winners list of the draw check, in FPrint1.
void showWinners(const WinnersOnScreen &shown, QWidget *opener);

/// The eight boards, or the statement of the customer they are filtered to, in Fprint2.
void showStatement(const BoardsOnScreen &shown, QWidget *opener);

/// The top and the bottom grid of the cut numbers board, in Fprint3.
void showCutNumbers(const SpreadModel &top, const SpreadModel &bottom, QWidget *opener);
