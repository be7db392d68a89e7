// SPDX-License-Identifier: MIT
// The look of the program: a style file beside it.
#pragma once

#include <QString>

/// Applies the style sheet at @p path to all windows. Without such a file the toolkit's bare look
/// stays; the look is no function.
void loadSkin(const QString &path);
