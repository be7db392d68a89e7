// SPDX-License-Identifier: MIT
// The save dialog as a real, modal window.
#pragma once

#include "desktop/savefile.h"

/// Shows the dialog over the active window and returns the chosen path, or "" on Cancel. Starts in
/// the user's documents folder, later in the last chosen folder. Neither appends an extension nor
/// asks before overwriting: the caller does both, since only it knows the final file name.
QString showSaveDialog(const SaveRequest &request);
