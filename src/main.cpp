// SPDX-License-Identifier: MIT
#include "desktop/application.h"
#include "desktop/programend.h"
#include "program.h"

int main(int argc, char **argv)
{
    Application application(argc, argv);
    try {
        const auto window = startProgram();
        return window ? Application::exec() : 1;
    } catch (const RunTimeError &error) { // startProgram() runs outside of Application::notify()
        endWithReport(error);
    }
}
