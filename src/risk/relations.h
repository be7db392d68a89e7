// SPDX-License-Identifier: MIT
// Which bets are lost together: the relations between a number and the longer numbers of its side.
// What they find is counted and listed alike.
#pragma once

#include <QList>
#include <QString>

/// A number of one class with all the money on it, whoever bought it.
struct ScanLine
{
    int num23;
    int numType;
    QString numValue;
    QString nMoney; ///< whole baht, unformatted; "" for none
};

/// True for the classes whose numbers can have related lines on a side: a scan lists no others.
bool isScanned(bool updown, int num23, int numType);

/// The lines of one side, each number of a class once, ready to be searched.
class RelatedLines
{
public:
    RelatedLines(bool updown, QList<ScanLine> lines);

    /// The lines that one result would hit together with @p line, straight before tod, in each the
    /// lower number first. Empty for a class that the side relates to nothing.
    QList<ScanLine> of(const ScanLine &line) const;

private:
    bool m_updown;
    QList<ScanLine> m_lines;
};
