// SPDX-License-Identifier: MIT
#include "desktop/programend.h"

#include "desktop/msgbox.h"

#include <cstdlib>
#include <utility>
#include <vector>

namespace {

std::vector<std::function<void()>> &closers()
{
    static std::vector<std::function<void()>> list;
    return list;
}

ProgramEnder &programEnder()
{
    // Not std::exit(): the toolkit's globals would be torn down under the living windows.
    static ProgramEnder ender = [](int status) { std::_Exit(status); };
    return ender;
}

} // namespace

void atProgramEnd(std::function<void()> closer)
{
    closers().push_back(std::move(closer));
}

ProgramEnder setProgramEnder(ProgramEnder ender)
{
    return std::exchange(programEnder(), std::move(ender));
}

void endProgram(int status)
{
    while (!closers().empty()) {
        const auto closer = std::move(closers().back());
        closers().pop_back();
        resumeNext(closer);
    }
    programEnder()(status);
    std::abort(); // an ender that returns would let a half-done handler go on
}

void endWithReport(const RunTimeError &error)
{
    MsgBox(error.report(), {BoxButtons::Ok, BoxIcon::Critical});
    endProgram(1);
}
