// SPDX-License-Identifier: MIT
// The end of the program from the middle of its work: everything durable is closed, then the
// process is gone, with no question and no handler run on the way.
#pragma once

#include "runtime/runtimeerror.h"

#include <functional>

/// Has @p closer run when the program ends by endProgram(). Closers run newest first.
void atProgramEnd(std::function<void()> closer);

/// What takes the process away, given the exit status.
using ProgramEnder = std::function<void(int status)>;

/// Sets what ends the process and gives back what did so before. Only tests set one; theirs
/// throws, since code behind endProgram() must not run.
ProgramEnder setProgramEnder(ProgramEnder ender);

/// Runs the closers and ends the process at once with @p status.
[[noreturn]] void endProgram(int status);

/// Ends the program because of an error that no handler passed over: shows the report with the
/// critical icon, closes the Ledger and ends with status 1.
[[noreturn]] void endWithReport(const RunTimeError &error);
