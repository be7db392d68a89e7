// SPDX-License-Identifier: MIT
// Windows, report pages and sheets as text, without defaults and without pixels, so that the text
// is the same on every machine.
#pragma once

#include <QStringList>

class QWidget;

/// The visible controls of a window or of a part of it, in the order in which Tab passes them, and
/// the cells of its grids and the items of its report pages.
QStringList dumpWindow(QWidget *window);

/// Fonts, formats, columns, cells and print setup of an .xls file.
QStringList dumpSheet(const QString &path);
