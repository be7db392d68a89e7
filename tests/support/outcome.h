// SPDX-License-Identifier: MIT
// What became of a statement that may fail: the error that it raised, the end of the program.
#pragma once

#include <QString>

#include <functional>
#include <optional>

using Statement = std::function<void()>;

/// Thrown where the process would have ended, so that no code behind that point runs.
struct EndedProgram
{
    int status;
};

/// Status with which @p statement ended the program; nothing if it came back.
std::optional<int> endStatus(const Statement &statement);

/// Report of the run-time error that @p statement raised; "" if it came back.
QString errorOf(const Statement &statement);

/// Runs @p statement without root's right to pass over file permissions, so that a read-only
/// file is one for root as for anybody else.
void withPlainRights(const Statement &statement);
