// SPDX-License-Identifier: MIT
#include "reports/viewers.h"

#include "reports/cutnumbersreport.h"
#include "reports/fprint.h"

using namespace Qt::StringLiterals;

void showWinners(const WinnersOnScreen &shown, QWidget *opener)
{
    FPrint(u"FPrint1"_s, std::make_unique<ActiveReport1>(shown), opener).exec();
}

void showStatement(const BoardsOnScreen &shown, QWidget *opener)
{
    FPrint(u"Fprint2"_s, std::make_unique<ActiveReport2>(shown), opener).exec();
}

void showCutNumbers(const SpreadModel &top, const SpreadModel &bottom, QWidget *opener)
{
    FPrint(u"Fprint3"_s, std::make_unique<ActiveReport3>(top, bottom), opener).exec();
}
