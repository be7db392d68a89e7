// SPDX-License-Identifier: MIT
// Fixed background colours that stay readable on a dark desktop.
#pragma once

#include <QColor>

class QWidget;

/// Gives a field or a frame a fixed background and black text, regardless of the desktop's
/// palette. Labels inside a frame get the same colours.
void setBackground(QWidget *widget, QRgb color);
