// SPDX-License-Identifier: MIT
// The whole program, for main(), tests and benchmarks.
#pragma once

#include "shell/mdiform1.h"

/// Returns the functions that create the pages and show the settings dialog.
Pages programPages();

/// Starts the program and returns its main window, shown with the first page. Returns nullptr for a
/// second copy, which must end at once. Ends the program if the Ledger cannot be opened.
std::unique_ptr<MDIForm1> startProgram();
