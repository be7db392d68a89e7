// SPDX-License-Identifier: MIT
// Fixed colours of fields and boxes, readable on every desktop.
#pragma once

#include <QColor>

class QWidget;

/// Gives a field or a box a ground of its own. A fixed ground comes with a dark text, whatever the
/// desktop's colours are; labels that lie in a box take its text colour.
void paintGround(QWidget *widget, QRgb ground);
