// SPDX-License-Identifier: MIT
// How a statement ended: it returned, failed, or ended the program.
#pragma once

#include <QString>

#include <functional>
#include <optional>

using Statement = std::function<void()>;

/// Thrown where the process would have ended, so that no later code runs.
struct EndedProgram
{
    int status;
};

/// Returns the status with which @p statement ended the program, or nothing if it returned.
std::optional<int> endStatus(const Statement &statement);

/// Returns the report of the RunTimeError that @p statement threw, or "".
QString errorOf(const Statement &statement);

/// Runs @p statement without root's power to ignore permissions.
void withPlainRights(const Statement &statement);
