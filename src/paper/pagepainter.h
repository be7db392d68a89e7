// SPDX-License-Identifier: MIT
// Draws finished pages for the screen, the printer and PDF files.
#pragma once

#include "paper/reportpage.h"

#include <QFont>

#include <functional>

class QPainter;

/// Returns the font of a text, sized for a coordinate system of twips.
QFont reportFont(const TextStyle &style);

/// Draws a text whose baseline starts at the given point.
using TextDrawer = std::function<void(QPainter &, QPointF, const QString &)>;

/// Draws @p page. The painter's coordinates are twips from the top left corner of the paper.
/// @p drawText replaces QPainter::drawText(), for the text of PDF files.
void drawPage(QPainter &painter, const ReportPage &page, const TextDrawer &drawText = {});
