// SPDX-License-Identifier: MIT
#include "desktop/application.h"
#include "desktop/handler.h"
#include "program.h"

int main(int argc, char **argv)
{
    const Application application(argc, argv);
    const auto window = handle(startProgram);
    return window ? Application::exec() : 1;
}
