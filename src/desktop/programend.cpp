// SPDX-License-Identifier: MIT
#include "desktop/programend.h"

#include "desktop/msgbox.h"

#include <cstdlib>
#include <utility>
#include <vector>

namespace {

std::vector<std::function<void()>> closers;

// Not std::exit(): it would destroy Qt's globals while windows still exist.
ProgramEnder programEnder = [](int status) { std::_Exit(status); };

} // namespace

void atProgramEnd(std::function<void()> closer)
{
    closers.push_back(std::move(closer));
}

ProgramEnder setProgramEnder(ProgramEnder ender)
{
    return std::exchange(programEnder, std::move(ender));
}

void endProgram(int status)
{
    while (!closers.empty()) {
        const auto closer = std::move(closers.back());
        closers.pop_back();
        resumeNext(closer);
    }
    programEnder(status);
    std::abort(); // if the ender returned, an unfinished handler would go on
}

void endWithReport(const RunTimeError &error)
{
    MsgBox(error.report(), {BoxButtons::Ok, BoxIcon::Critical});
    endProgram(1);
}
