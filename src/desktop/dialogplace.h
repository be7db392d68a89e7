// SPDX-License-Identifier: MIT
// Where the program's windows come up, and where the keys go when a dialog closes.
#pragma once

class QDialog;
class QWidget;

/// Places a window, frame and all, in the middle of the screen. One that is larger than the screen
/// is made smaller.
void centerWindow(QWidget &window);

/// Places a dialog in the middle of the screen's width, with a third of the free height above it.
/// One that is larger than the screen is made smaller.
void placeDialog(QWidget &dialog);

/// Shows a dialog modally over its parent; gives what it came to. The parent's window has the keys
/// again afterwards, also on a desktop without a window manager.
int runDialog(QDialog &dialog);
