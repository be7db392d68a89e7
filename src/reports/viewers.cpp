// SPDX-License-Identifier: MIT
#include "reports/viewers.h"

#include "desktop/dialogplace.h"
#include "reports/cutnumbersreport.h"
#include "reports/fprint.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

void show(const QString &viewer, std::unique_ptr<Report> report, QWidget *opener)
{
    FPrint window(viewer, std::move(report), opener);
    runDialog(window);
}

} // namespace

void showWinners(const WinnersOnScreen &shown, QWidget *opener)
{
    show(u"FPrint1"_s, std::make_unique<ActiveReport1>(shown), opener);
}

void showStatement(const BoardsOnScreen &shown, QWidget *opener)
{
    show(u"Fprint2"_s, std::make_unique<ActiveReport2>(shown), opener);
}

void showCutNumbers(const SpreadModel &top, const SpreadModel &bottom, QWidget *opener)
{
    show(u"Fprint3"_s, std::make_unique<ActiveReport3>(top, bottom), opener);
}
