// SPDX-License-Identifier: MIT
// The save dialog as a real, modal window.
#pragma once

#include "desktop/savefile.h"

/// Asks over the active window, first in the user's documents, then in the folder picked last.
/// It adds no ending and asks about no existing file: both are for the one who knows the file's
/// final name.
QString showSaveDialog(const SaveRequest &request);
