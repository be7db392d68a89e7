// SPDX-License-Identifier: MIT
#include "drawcheck/halving.h"

#include "entry/hotnumbers.h"

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

Halvings Halvings::read()
{
    Halvings halvings;
    const QStringList hot = readHotNumbers();
    for (const QString &number : hot) {
        ++halvings.m_straight[number];
        const QStringList orders = todOrders(number);
        for (const QString &order : orders)
            ++halvings.m_tod[order];
    }
    return halvings;
}

int Halvings::count(int numType, const QString &numValue) const
{
    switch (numType) {
    case Straight:
        return m_straight.value(numValue);
    case Tod:
        return m_tod.value(numValue);
    default:
        return 0;
    }
}
