// SPDX-License-Identifier: MIT
#include "entry/hotnumbers.h"

#include "ledger/ledger.h"

using namespace Qt::StringLiterals;

namespace {

/// The orders of the first three digits, each once, and the number itself. Of a number of two
/// digits the third drops out of each order, and two are left.
QStringList todOrders(const QString &number)
{
    const QString one = number.mid(0, 1);
    const QString two = number.mid(1, 1);
    const QString three = number.mid(2, 1);
    QStringList orders{number,
                       two + three + one,
                       two + one + three,
                       one + three + two,
                       three + one + two,
                       three + two + one};
    orders.removeDuplicates();
    return orders;
}

} // namespace

QStringList readHotNumbers()
{
    QStringList numbers;
    RecordsetB.open(u" SELECT tblNumberFix.* FROM tblNumberFix ORDER BY PK"_s);
    const qsizetype place = RecordsetB.place(u"Fnumber"_s);
    for (; !RecordsetB.eof(); RecordsetB.moveNext())
        numbers += RecordsetB.field(place).toString();
    RecordsetB.close();
    return numbers;
}

HotNumbers::HotNumbers(const QStringList &numbers)
{
    for (const QString &number : numbers) {
        ++m_straight[number];
        const QStringList orders = todOrders(number);
        for (const QString &order : orders)
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
