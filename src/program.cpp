// SPDX-License-Identifier: MIT
// Assembles the program. Besides main.cpp, the only file that may include every folder.
#include "program.h"

#include "customers/form2.h"
#include "cutting/form3.h"
#include "cutting/numcut.h"
#include "desktop/dialogplace.h"
#include "drawcheck/form4.h"
#include "entry/form1.h"
#include "history/form5.h"
#include "reports/viewers.h"
#include "risk/vikoc.h"
#include "settings/setting.h"
#include "shell/globals.h"

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

void showScan(Form3 &board)
{
    const auto showCutNum = [&](QWidget *owner, const std::function<void()> &scanAgain) {
        board.showCutNum(owner, scanAgain);
    };
    ViKoC dialog(board.board(), showCutNum, board.window());
    runDialog(dialog);
}

BoardOpeners boardOpeners(const CustomerStrip &strip)
{
    BoardOpeners openers;
    openers.showScan = showScan;
    openers.printBoard = [&strip](Form3 &board) {
        showStatement(onScreen(board, strip), board.window());
    };
    openers.printCuts = [](Numcut &dialog) {
        const auto &grids = dialog.cutBoard().grids;
        showCutNumbers(grids[0], grids[1], &dialog);
    };
    return openers;
}

void printWinners(const DrawCheck &check, QWidget *opener)
{
    showWinners({check.winners, check.Label19, check.book == Book::CutOut}, opener);
}

/// Shows the settings dialog. A draw cannot be closed without rows on the board. If the board is
/// not the open page, a hidden board is loaded for that check. An open board is reloaded when the
/// dialog closes; the controls of its filter keep their state.
void showSettings(const Frame &frame, MDIForm1 *window)
{
    const QPointer open = qobject_cast<Form3 *>(window->page());
    std::unique_ptr<Form3> hidden;
    const auto boardShowsRows = [&] {
        if (!open && !hidden)
            hidden = std::make_unique<Form3>(frame, BoardOpeners{}, nullptr);
        return !(open ? open.data() : hidden.get())->board().isEmpty();
    };
    Setting dialog(window, boardShowsRows);
    runDialog(dialog);
    if (open && CutOrigin == FromBoard)
        open->FReLoad();
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
    pages.makers[3] = [](const Frame &frame, QWidget *parent) {
        return new Form4(frame.progress, printWinners, parent);
    };
    pages.makers[4] = [](const Frame &frame, QWidget *parent) {
        return new Form5(frame.progress, parent);
    };
    pages.showSettings = showSettings;
    return pages;
}

std::unique_ptr<MDIForm1> startProgram()
{
    auto window = std::make_unique<MDIForm1>(programPages());
    if (!window->MDIForm_Load())
        return nullptr;
    window->openPage(0);
    window->show();
    window->activateWindow(); // the first key must reach the entry field
    return window;
}
