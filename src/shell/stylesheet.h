// SPDX-License-Identifier: MIT
// The look of the program: a style file beside it.
#pragma once

#include <QString>

/// Applies the style sheet at @p path to all windows. Without such a file Qt's own look stays.
void loadStyleSheet(const QString &path);
