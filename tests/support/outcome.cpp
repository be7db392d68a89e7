// SPDX-License-Identifier: MIT
#include "support/outcome.h"

#include "desktop/programend.h"
#include "runtime/runtimeerror.h"

#include <QScopeGuard>

#include <array>

#ifndef Q_OS_WIN
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

std::optional<int> endStatus(const Statement &statement)
{
#ifdef __SANITIZE_ADDRESS__
    // Qt does not free what it holds where the process would have ended.
    const __lsan::ScopedDisabler noLeaks;
#endif
    const auto restore =
        qScopeGuard([before = setProgramEnder([](int status) { throw EndedProgram{status}; })] {
            setProgramEnder(before);
        });
    try {
        statement();
    } catch (const EndedProgram &end) {
        return end.status;
    }
    return std::nullopt;
}

QString errorOf(const Statement &statement)
{
    try {
        statement();
    } catch (const RunTimeError &error) {
        return error.report();
    }
    return {};
}

void withPlainRights(const Statement &statement)
{
#ifdef Q_OS_WIN // where a read-only file is one for an administrator too
    statement();
#else
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> rights{};
    syscall(SYS_capget, &header, rights.data());
    auto plain = rights;
    plain[0].effective &= ~(1U << CAP_DAC_OVERRIDE);
    if (syscall(SYS_capset, &header, plain.data()) != 0)
        qFatal("the capabilities cannot be reduced");
    const auto restore = qScopeGuard([&] { syscall(SYS_capset, &header, rights.data()); });
    statement();
#endif
}
