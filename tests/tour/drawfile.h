// SPDX-License-Identifier: MIT
// A draw file as steps: what is keyed, and what must come out. The files in draws/ say in their heads
// how they are written.
#pragma once

#include <QList>
#include <QString>

/// A step, with a verb that the script makes with "to".
struct DrawFact
{
    QString text;
    QString place; ///< line of the file, for messages
};

/// The lines of a draw as steps. Lines that say the rows of one grid are joined:
///
///     member NAME TELEPHONE PERCENT, hot NUMBER: as in the file
///     kind CAPTION KEY: before a line of another kind than the line before
///     line TEXT, refused TEXT: the refusal follows its line
///     customer NAME TOTAL DISCOUNT, rows GRID ROWS, ticket COUNT: behind the lines of a ticket
///     book LINES MONEY DISCOUNTS: without commas
///     board GRID CAPTION COUNT TOTAL LABEL ESTIMATE HEAVIEST: the label is that of the estimate
///     risk TOP BOTTOM
///     result DIGITS WINNERS PAYOUT PROFIT
///     history PAYOUT PROFIT TOP BOTTOMS BOTTOM: with the numbers drawn, as the history shows them
QList<DrawFact> readDraw(const QString &path);
