// SPDX-License-Identifier: MIT
#include "entry/hotnumbers.h"

#include "ledger/ledger.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Two tod bets with the same digits in any order have the same text here.
QString sortedDigits(QString number)
{
    std::sort(number.begin(), number.end());
    return number;
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
    : m_list(numbers), m_numbers(numbers.begin(), numbers.end())
{
    for (QString number : numbers) {
        m_sorted += sortedDigits(number.left(3));
        std::reverse(number.begin(), number.end());
        m_turned += number;
    }
}

bool HotNumbers::reach(const BetClass &betClass, const QString &number) const
{
    if (betClass.numType == Run)
        return false;
    if (m_numbers.contains(number))
        return true;
    if (betClass.numType == Straight)
        return false;
    return betClass.num23 == 2 ? m_turned.contains(number)
                               : m_sorted.contains(sortedDigits(number));
}
