// SPDX-License-Identifier: MIT
// Prints finished pages.
#pragma once

#include "paper/reportpage.h"

class QPrinter;
class QWidget;

/// Lets the user choose a printer, pages and copies in the print dialog, then prints. Shows a box
/// if printing fails.
void printWithDialog(const ReportPages &report, QWidget *parent);

/// Prints the page range and copies set in @p printer, scaled to its paper. Returns false if
/// printing fails or the range has no page.
bool printPages(const ReportPages &report, QPrinter &printer);
