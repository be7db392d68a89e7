// SPDX-License-Identifier: MIT
// The folder that the program lies in. All its files stand below it, so the data travels with
// the program.
#pragma once

#include <QString>

/// The program's folder, or the one that a test set, without any slash added.
QString programFolder();

/// Has the program look for its files below @p folder; an empty text undoes that.
void setProgramFolder(const QString &folder);

/// Path of a file below the program's folder. @p relativePath has no leading slash; a folder
/// that ends in a slash, a drive's root, gets no second one.
QString programFile(const QString &relativePath);
