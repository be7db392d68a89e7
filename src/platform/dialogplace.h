// SPDX-License-Identifier: MIT
// Where the program's dialogs come up.
#pragma once

class QWidget;

/// Places a dialog in the middle of the screen's width, with a third of the free height above it.
/// One that is larger than the screen is made smaller.
void placeDialog(QWidget &dialog);
