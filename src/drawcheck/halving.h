// SPDX-License-Identifier: MIT
// How often hot numbers halve what a winning bet is paid.
#pragma once

#include <QHash>
#include <QString>

class Halvings
{
public:
    /// Nothing is halved.
    Halvings() = default;

    /// What the hot numbers of the Ledger halve. Uses RecordsetB.
    static Halvings read();

    /// How many hot numbers reach a bet of this kind and number: a straight one by the number
    /// itself, a tod one by any order of its digits, top and bottom alike. A run is never reached.
    int count(int numType, const QString &numValue) const;

private:
    QHash<QString, int> m_straight;
    QHash<QString, int> m_tod;
};
