// SPDX-License-Identifier: MIT
// The folder of the executable. All files of the program are below it, so that the folder can be
// moved or copied as a whole.
#pragma once

#include <QString>

/// Returns the folder of the executable, or the one that a test has set.
QString programFolder();

/// Makes the program look for its files below @p folder. An empty text restores the default. For
/// tests and benchmarks.
void setProgramFolder(const QString &folder);

/// Returns the path of a file below the program's folder. @p relativePath has no leading slash. A
/// folder that ends in a slash, such as the root of a drive, gets no second one.
QString programFile(const QString &relativePath);
