// SPDX-License-Identifier: MIT
// Converts finished pages to one sheet of rows and columns.
#pragma once

#include "paper/reportpage.h"
#include "paper/xlswriter.h"

/// Returns the texts of a report as a sheet: a column for each field of a row, the page header once
/// above all rows and the page footer once below them. Amounts become numbers that can be added up;
/// the digits of a bet stay text. Spaces around a text are removed.
Sheet sheetOf(const ReportPages &report);
