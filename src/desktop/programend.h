// SPDX-License-Identifier: MIT
// Ends the program from inside a handler: calls the registered functions, then ends the process
// without asking and without running another handler.
#pragma once

#include "runtime/runtimeerror.h"

#include <functional>

/// Registers a function that endProgram() calls, in reverse order of registration. A run-time
/// error in it is ignored.
void atProgramEnd(std::function<void()> closer);

/// Ends the process with an exit status.
using ProgramEnder = std::function<void(int status)>;

/// Sets what ends the process and returns the previous function. Only tests set one. It has to
/// throw, since code after endProgram() must not run.
ProgramEnder setProgramEnder(ProgramEnder ender);

/// Calls the registered functions and ends the process with @p status.
[[noreturn]] void endProgram(int status);

/// Shows the report of an uncaught run-time error with the critical icon, then ends the program
/// with status 1.
[[noreturn]] void endWithReport(const RunTimeError &error);
