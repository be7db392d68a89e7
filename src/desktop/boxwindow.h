// SPDX-License-Identifier: MIT
// Message boxes as real, modal windows.
#pragma once

#include "desktop/msgbox.h"

/// Shows @p box over the active window and waits until it is answered. Esc and closing the
/// window count as Cancel in a question. A button takes the mouse only if it is pressed later than
/// the double-click interval after the box appeared; keys work at once.
BoxAnswer showMessageBox(const Box &box);
