// SPDX-License-Identifier: MIT
// Finished pages on a printer.
#pragma once

#include "paper/reportpage.h"

class QPrinter;
class QWidget;

/// Lets the user pick a printer, pages and copies in the system's dialog, and prints.
void printWithDialog(const ReportPages &report, QWidget *parent);

/// Prints the pages that @p printer is set to, in its order, as often as it cannot by itself.
/// Paper of another size gets the pages as large as it can hold. False if it cannot print.
bool printPages(const ReportPages &report, QPrinter &printer);
