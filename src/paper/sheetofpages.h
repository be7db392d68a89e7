// SPDX-License-Identifier: MIT
// Finished pages as one sheet of rows and columns.
#pragma once

#include "paper/reportpage.h"
#include "paper/xlswriter.h"

/// The texts of a report where they stand on paper: a column for each field of a row, the page
/// header once above all rows and the page footer once below them. Amounts become numbers that
/// can be added up; the digits of a bet stay a text. Blanks around a text are left away.
Sheet sheetOf(const ReportPages &report);
