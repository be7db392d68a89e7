// SPDX-License-Identifier: MIT
// Puts the program together. With main.cpp the only place that knows all rooms.
#include "program.h"

#include "customers/form2.h"
#include "drawcheck/form4.h"
#include "entry/form1.h"
#include "history/form5.h"
#include "ledger/ledger.h"
#include "reports/viewers.h"
#include "settings/setting.h"

namespace {

/// What the board of the whole book would say before a draw is closed.
bool bookHasLines()
{
    return !LedgerConnection->run(QStringLiteral("SELECT 1 FROM tblNumber LIMIT 1")).rows.isEmpty();
}

void printWinners(const DrawCheck &check, QWidget *opener)
{
    showWinners({check.winners, check.Label19, check.book == Book::CutOut}, opener);
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
    pages.makers[3] = [](const Frame &frame, QWidget *parent) {
        return new Form4(frame.progress, printWinners, parent);
    };
    pages.makers[4] = [](const Frame &frame, QWidget *parent) {
        return new Form5(frame.progress, parent);
    };
    pages.showSettings = [](QWidget *parent) { Setting(parent, bookHasLines).exec(); };
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
