// SPDX-License-Identifier: MIT
// What programs that others wrote read in the files that the program writes.
#pragma once

#include <QStringList>

/// Contents and formats of an .xls or PDF file, as lines of readfile.py; none if it cannot be read.
QStringList readByOthers(const QString &path);
