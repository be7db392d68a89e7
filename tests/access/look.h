// SPDX-License-Identifier: MIT
// What those find fault with in a window who use no mouse, a screen reader, large type or dark colours.
#pragma once

#include <QStringList>

class QWidget;

/// Controls without a name of their own or out of reach of Tab, texts that are cut off or too faint, a
/// window larger than the screen, grids with too few rows to work in.
QStringList faultsIn(QWidget *form);
