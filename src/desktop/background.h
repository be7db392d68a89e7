// SPDX-License-Identifier: MIT
// Fixed colours of fields and boxes, readable on every desktop.
#pragma once

#include <QColor>

class QWidget;

/// Gives a field or a box a fixed background, and with it a dark text, whatever the desktop's
/// colours are. Labels in a box take its text colour.
void setBackground(QWidget *widget, QRgb color);
