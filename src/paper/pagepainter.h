// SPDX-License-Identifier: MIT
// Draws finished pages, the same way on screen, on paper and into a PDF file.
#pragma once

#include "paper/reportpage.h"

#include <QFont>

#include <functional>

class QPainter;

/// Type of a report, in a coordinate system of twips.
QFont reportFont(const TextStyle &style);

/// Draws a text with its baseline beginning at a point.
using TextDrawer = std::function<void(QPainter &, QPointF, const QString &)>;

/// Draws @p page. One unit of the painter's coordinate system is a twip and its origin the corner
/// of the paper. @p drawText draws the texts where the painter's own way does not do.
void drawPage(QPainter &painter, const ReportPage &page, const TextDrawer &drawText = {});
