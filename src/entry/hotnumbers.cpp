// SPDX-License-Identifier: MIT
#include "entry/hotnumbers.h"

#include "ledger/ledger.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QStringList hotNumbers()
{
    QStringList numbers;
    RecordsetB.open(u" SELECT tblNumberFix.* FROM tblNumberFix ORDER BY PK"_s);
    for (; !RecordsetB.eof(); RecordsetB.moveNext())
        numbers += RecordsetB.field(u"Fnumber"_s).toString();
    RecordsetB.close();
    return numbers;
}

QStringList todBetsReached(const QString &hot, int digits)
{
    if (digits == 2) {
        QString turned = hot;
        std::reverse(turned.begin(), turned.end());
        return {hot, turned};
    }
    const QString one = hot.mid(0, 1); // a digit that is not there is empty
    const QString two = hot.mid(1, 1);
    const QString three = hot.mid(2, 1);
    return {hot,
            two + three + one,
            two + one + three,
            one + three + two,
            three + one + two,
            three + two + one};
}
