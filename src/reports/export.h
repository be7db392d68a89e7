// SPDX-License-Identifier: MIT
// Exports reports to Excel and PDF files.
#pragma once

#include "paper/reportpage.h"

enum class ExportFormat { Excel, Pdf };

/// Asks for a file name and saves the report there. The format's extension is always appended, even
/// if the name already has it. Asks before it replaces a file; Cancel saves nothing. Reports
/// neither success nor failure. A failed export leaves an existing file unchanged and creates none.
void exportReport(ExportFormat format, const ReportPages &report);
