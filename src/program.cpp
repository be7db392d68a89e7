// SPDX-License-Identifier: MIT
// Puts the program together. With main.cpp the only place that knows all rooms.
#include "program.h"

#include "customers/form2.h"
#include "cutting/form3.h"
#include "entry/form1.h"
#include "settings/setting.h"

Pages programPages()
{
    Pages pages;
    pages.makers[0] = [](const Frame &frame, QWidget *parent) {
        return new Form1(frame.progress, parent);
    };
    pages.makers[1] = [](const Frame &frame, QWidget *parent) {
        return new Form2(frame.progress, parent);
    };
    pages.makers[2] = [](const Frame &frame, QWidget *parent) {
        return new Form3(frame, {}, parent);
    };
    pages.showSettings = [](QWidget *parent) {
        Setting(parent).exec();
        reloadCurrentBoard(*parent);
    };
    return pages;
}

std::unique_ptr<MDIForm1> startProgram()
{
    auto window = std::make_unique<MDIForm1>(programPages());
    if (!window->MDIForm_Load())
        return nullptr;
    window->openPage(0);
    window->show();
    window->activateWindow(); // the first key has to land in the entry field
    return window;
}
