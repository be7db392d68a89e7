// SPDX-License-Identifier: MIT
#include "entry/digitorders.h"

#include <array>

namespace {

/// Which digits of a number are equal.
enum Equality { TwoDigits, AllDiffer, FirstPair, OuterPair, LastPair };

/// Orders as positions in the number, the number itself first. The two sequences differ, since each
/// screen has its own.
struct DigitOrders
{
    const char *turned;
    const char *listed;
};

constexpr std::array OrderTable{
    DigitOrders{"01 10", "01 10"},
    DigitOrders{"012 210 201 120 102 021", "012 021 102 120 201 210"},
    DigitOrders{"012 210 021", "012 210 021"},
    DigitOrders{"012 102 021", "012 102 021"},
    DigitOrders{"012 120 201", "012 102 120"},
};

const DigitOrders &ordersOf(const QString &number)
{
    if (number.size() == 2)
        return OrderTable[TwoDigits];
    if (number[0] == number[1])
        return OrderTable[FirstPair];
    if (number[0] == number[2])
        return OrderTable[OuterPair];
    return OrderTable[number[1] == number[2] ? LastPair : AllDiffer];
}

QStringList rearranged(const QString &number, const char *orders)
{
    QStringList numbers;
    const QList<QByteArray> all = QByteArray(orders).split(' ');
    for (const QByteArray &places : all) {
        QString other;
        for (const char place : places)
            other += number.mid(place - '0', 1);
        numbers += other;
    }
    return numbers;
}

} // namespace

QStringList turnedOrders(const QString &number)
{
    return rearranged(number, ordersOf(number).turned);
}

QStringList listedOrders(const QString &number)
{
    return rearranged(number, ordersOf(number).listed);
}

QStringList otherOrders(const QString &number)
{
    return rearranged(number, OrderTable[number.size() == 2 ? TwoDigits : AllDiffer].listed).mid(1);
}
