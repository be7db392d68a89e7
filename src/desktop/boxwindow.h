// SPDX-License-Identifier: MIT
// Shows the boxes of msgbox.h as modal windows.
#pragma once

#include "desktop/msgbox.h"

/// Shows @p box modally over the active window and returns its answer. Esc and closing the window
/// count as Cancel in a question. Buttons ignore the mouse during the double-click interval after
/// the box appeared; keys work at once.
BoxAnswer showMessageBox(const Box &box);
