// SPDX-License-Identifier: MIT
// Where the program's dialogs come up, and where the keys go when they close.
#pragma once

class QDialog;
class QWidget;

/// Places a dialog in the middle of the screen's width, with a third of the free height above it.
/// One that is larger than the screen is made smaller.
void placeDialog(QWidget &dialog);

/// Shows a dialog modally over its parent; gives what it came to. The parent's window has the keys
/// again afterwards, also on a desktop without a window manager.
int runDialog(QDialog &dialog);
