// SPDX-License-Identifier: MIT
// Places the program's windows, and activates the parent window again after a dialog closes.
#pragma once

class QDialog;
class QWidget;

/// Centres a window with its frame on the screen. A window larger than the screen is shrunk.
void centerWindow(QWidget &window);

/// Centres a dialog horizontally, with a third of the free height above it. A dialog larger than
/// the screen is shrunk.
void placeDialog(QWidget &dialog);

/// Shows a dialog modally and returns its QDialog::exec() result. Activates the parent's window
/// afterwards, since nothing else does so without a window manager.
int runDialog(QDialog &dialog);
