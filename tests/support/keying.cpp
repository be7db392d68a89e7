// SPDX-License-Identifier: MIT
#include "support/keying.h"

#include "entry/builders.h"
#include "entry/keyedline.h"

using namespace Qt::StringLiterals;

void keyLine(Ticket &ticket, const QString &caption, const QString &text)
{
    const BetKind kind = kindOfCaption(caption);
    if (splitLine(ticket, text, kind) == LineForm::Good)
        runBuilder(ticket, kind);
}

QStringList rowsOf(const Ticket &ticket)
{
    QStringList rows;
    for (int at = 0; at < ClassCount; ++at) {
        const SpreadModel &grid = ticket.grids[at];
        for (int row = 1; row <= grid.rows(); ++row)
            rows += u"%1: %2=%3"_s.arg(QString::number(at + 1), grid.text(row, NumberColumn),
                                       grid.text(row, AmountColumn));
    }
    return rows;
}
