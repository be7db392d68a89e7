// SPDX-License-Identifier: MIT
#include "risk/coverage.h"

using namespace Qt::StringLiterals;

QString coverageText(const CoverageBar &bar, int bought)
{
    return u"%1 : เสี่ยงถูก ( %2 / %3 )"_s.arg(bar.words).arg(bought).arg(bar.numbers);
}

int coverageValue(const CoverageBar &bar, int bought)
{
    return bought > bar.numbers ? 0 : bought;
}
