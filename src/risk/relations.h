// SPDX-License-Identifier: MIT
// Relations between a number and other numbers of its side, of two or three digits, that one result
// can hit together with it.
#pragma once

#include <QList>
#include <QString>

/// A number of one class with the money of all customers on it.
struct ScanLine
{
    int num23;
    int numType;
    QString numValue;
    QString nMoney; ///< whole baht, unformatted; "" for none
};

/// Returns true for classes whose numbers can have related lines. A scan lists no others.
bool isScanned(bool updown, int num23, int numType);

/// Finds related lines among the lines of one side, which have each number of a class once.
class RelatedLines
{
public:
    RelatedLines(bool updown, QList<ScanLine> lines);

    /// Returns the lines that one result can hit together with @p line: straight before tod, both
    /// by number. Empty for a class without a relation.
    QList<ScanLine> of(const ScanLine &line) const;

private:
    bool m_updown;
    QList<ScanLine> m_lines;
};
