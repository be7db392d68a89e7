// SPDX-License-Identifier: MIT
// What an eye would find fault with on a window: words cut off, words too faint to read.
#pragma once

#include <QStringList>

class QWidget;

/// A form larger than the desktop, pages that have to be scrolled, texts that do not fit their place,
/// grids that show too few rows to work in, and type too small to read all day.
QStringList cutOffIn(QWidget *form);

/// Texts that stand out too little from their ground, as the window is painted now.
QStringList faintIn(QWidget *form);
