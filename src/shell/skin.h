// SPDX-License-Identifier: MIT
// The look of the program: a style file beside it, or the desktop's own.
#pragma once

#include <QString>

/// Applies the style sheet at @p path to all windows. Without such a file the desktop's own look
/// stays; the look is no function.
void loadSkin(const QString &path);
