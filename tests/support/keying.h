// SPDX-License-Identifier: MIT
// Keys lines into a ticket as the entry field does, and reads the ticket back.
#pragma once

#include "entry/builders.h"
#include "entry/keyedline.h"
#include "entry/ticket.h"

/// Keys a line such as "123-50" with the kind of this caption.
inline void keyLine(Ticket &ticket, const QString &caption, const QString &text)
{
    const BetKind kind = kindOfCaption(caption);
    if (splitLine(ticket, text, kind) == LineForm::Good)
        runBuilder(ticket, kind);
}

/// Returns all rows such as "1: 123=50", with the number of their grid.
inline QStringList rowsOf(const Ticket &ticket)
{
    QStringList rows;
    for (int at = 0; at < ClassCount; ++at) {
        const SpreadModel &grid = ticket.grids[at];
        for (int row = 1; row <= grid.rows(); ++row)
            rows += QStringLiteral("%1: %2=%3")
                        .arg(QString::number(at + 1), grid.text(row, NumberColumn),
                             grid.text(row, AmountColumn));
    }
    return rows;
}
