// SPDX-License-Identifier: MIT
// Windows and report pages as text, without defaults and without pixels, so that the text
// is the same on every machine.
#pragma once

#include <QStringList>

class QWidget;

/// The visible controls of a window or of a part of it, in the order in which Tab passes them, and
/// the cells of its grids and the items of its report pages.
QStringList dumpWindow(QWidget *window);
