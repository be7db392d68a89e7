// SPDX-License-Identifier: MIT
// A ticket as it is keyed into the program and into the model.
#pragma once

#include "model/trade.h"
#include "support/boxscript.h"
#include "support/gridrows.h"
#include "support/keying.h"
#include "support/same.h"

using namespace Qt::StringLiterals; // NOLINT(google-global-names-in-headers)

struct KeyedTicket
{
    /// Keys a line, which both have to refuse, with one box, or to accept. True if accepted.
    bool key(const QString &caption, const QString &line)
    {
        const BoxScript boxes;
        keyLine(ticket, caption, line);
        const bool accepted = expected.key(caption, line);
        same(u"boxes and tab after "_s + caption + u' ' + line,
             {QString::number(boxes.texts().size()), QString::number(ticket.ShowTopTab)},
             {QString::number(accepted ? 0 : 1), QString::number(expected.showsTop)});
        return accepted;
    }

    /// Compares the grids and their total.
    void compare()
    {
        for (size_t at = 0; at < ticket.grids.size(); ++at)
            same(QString::fromUtf16(model::Classes[at].caption),
                 rowsOf(ticket.grids[at], {NumberColumn, AmountColumn}), expected.rows(at));
        same(u"total"_s, {QString::number(sumTotal(ticket.totalGrids()))},
             {QString::number(expected.total())});
    }

    Ticket ticket;
    model::Ticket expected;
};
