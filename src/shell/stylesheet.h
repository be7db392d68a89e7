// SPDX-License-Identifier: MIT
// Loads the style sheet of the program.
#pragma once

#include <QString>

/// Applies the style sheet at @p path to all windows. Leaves plain Fusion if there is no such file.
void loadStyleSheet(const QString &path);
