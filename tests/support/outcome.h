// SPDX-License-Identifier: MIT
// How a statement ended: it returned, failed, or ended the program.
#pragma once

#include "desktop/programend.h"
#include "runtime/runtimeerror.h"

#include <QScopeGuard>

#include <array>
#include <functional>
#include <optional>

#ifndef Q_OS_WIN
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

using Statement = std::function<void()>;

/// Thrown where the process would have ended, so that no later code runs.
struct EndedProgram
{
    int status;
};

/// Returns the status with which @p statement ended the program, or nothing if it returned.
inline std::optional<int> endStatus(const Statement &statement)
{
#ifdef __SANITIZE_ADDRESS__
    // Qt does not free what it holds where the process would have ended.
    const __lsan::ScopedDisabler noLeaks;
#endif
    const auto before = setProgramEnder([](int status) { throw EndedProgram{status}; });
    const auto restore = qScopeGuard([&] { setProgramEnder(before); });
    try {
        statement();
    } catch (const EndedProgram &end) {
        return end.status;
    }
    return std::nullopt;
}

/// Returns the report of the RunTimeError that @p statement threw, or "".
inline QString errorOf(const Statement &statement)
{
    try {
        statement();
    } catch (const RunTimeError &error) {
        return error.report();
    }
    return {};
}

/// Runs @p statement without root's power to ignore permissions.
inline void withPlainRights(const Statement &statement)
{
#ifndef Q_OS_WIN // where a read-only file is one for an administrator too
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> rights{};
    syscall(SYS_capget, &header, rights.data());
    const auto restore =
        qScopeGuard([header, rights]() mutable { syscall(SYS_capset, &header, rights.data()); });
    rights[0].effective &= ~(1U << CAP_DAC_OVERRIDE);
    if (syscall(SYS_capset, &header, rights.data()) != 0)
        qFatal("the capabilities cannot be reduced");
#endif
    statement();
}
