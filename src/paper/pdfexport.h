// SPDX-License-Identifier: MIT
// Finished pages as a PDF file: A4, with embedded fonts and text that can be searched and copied.
#pragma once

#include "paper/reportpage.h"

#include <QByteArray>

/// Returns the content of the PDF file.
QByteArray pdfOf(const ReportPages &report);
