// SPDX-License-Identifier: MIT
// Puts the program together. With main.cpp the only place that knows all rooms.
#include "program.h"

#include "customers/form2.h"
#include "cutting/form3.h"
#include "cutting/numcut.h"
#include "entry/form1.h"
#include "reports/viewers.h"
#include "settings/setting.h"

namespace {

BoardsOnScreen onScreen(Form3 &board, const CustomerStrip &strip)
{
    BoardsOnScreen shown{{}, [&board](int tab) { return board.selectTab(tab); }};
    for (const SpreadModel &grid : board.board().grids)
        shown.boards += &grid;
    shown.customer = strip.Tname.text();
    shown.discount = strip.text3.text();
    return shown;
}

BoardOpeners boardOpeners(const CustomerStrip &strip)
{
    BoardOpeners openers;
    openers.printBoard = [&strip](Form3 &board) {
        showStatement(onScreen(board, strip), board.window());
    };
    openers.printCuts = [](Numcut &dialog) {
        const auto &grids = dialog.cutBoard().grids;
        showCutNumbers(grids[0], grids[1], &dialog);
    };
    return openers;
}

} // namespace

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
        return new Form3(frame, boardOpeners(frame.strip), parent);
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
