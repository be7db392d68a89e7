// SPDX-License-Identifier: MIT
// Finished pages as a PDF file: A4, type embedded, every word searched and copied as written.
#pragma once

#include "paper/reportpage.h"

#include <QByteArray>

/// The file's bytes.
QByteArray pdfOf(const ReportPages &report);
