// SPDX-License-Identifier: MIT
#include "entry/hotnumbers.h"

#include "entry/digitorders.h"
#include "ledger/ledger.h"

#include <utility>

using namespace Qt::StringLiterals;

QStringList readHotNumbers()
{
    QStringList numbers;
    RecordsetB.open(u" SELECT tblNumberFix.* FROM tblNumberFix ORDER BY PK"_s);
    const qsizetype place = RecordsetB.columnIndex(u"Fnumber"_s);
    for (; !RecordsetB.eof(); RecordsetB.moveNext())
        numbers += RecordsetB.field(place).toString();
    RecordsetB.close();
    return numbers;
}

HotNumbers::HotNumbers(const QStringList &numbers)
{
    for (const QString &number : numbers) {
        ++m_straight[number];
        QStringList orders = QStringList(number) + otherOrders(number);
        orders.removeDuplicates(); // equal digits
        for (const QString &order : std::as_const(orders))
            ++m_tod[order];
    }
}

int HotNumbers::count(int numType, const QString &number) const
{
    switch (numType) {
    case Straight:
        return m_straight.value(number);
    case Tod:
        return m_tod.value(number);
    default:
        return 0;
    }
}
