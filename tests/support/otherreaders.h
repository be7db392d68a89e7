// SPDX-License-Identifier: MIT
// What other programs read in the files of this one.
#pragma once

#include <QStringList>

/// Returns contents and formats of an .xls or PDF file as printed by readfile.py.
QStringList readByOthers(const QString &path);
