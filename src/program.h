// SPDX-License-Identifier: MIT
// The program as a whole, for its own main() and for whoever drives it from outside.
#pragma once

#include "shell/mdiform1.h"

/// The pages that exist, and how each is made.
Pages programPages();

/// Starts the program: the main window, loaded and shown on its first page. Nothing for a second
/// copy, which is to end at once. Ends the program when the Ledger cannot be opened.
std::unique_ptr<MDIForm1> startProgram();
