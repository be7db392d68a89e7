// SPDX-License-Identifier: MIT
// Finished reports as files: an Excel sheet and a PDF.
#pragma once

#include "paper/reportpage.h"

enum class ExportFormat { Excel, Pdf };

/// Asks where to, and saves the report there. The name that is picked gets the format's ending,
/// also if it ends so already; a file of that final name is asked about before it is replaced.
/// Cancel saves nothing. No word follows, neither on success nor on failure; a failed export
/// leaves no file.
void exportReport(ExportFormat format, const ReportPages &report);
