// SPDX-License-Identifier: MIT
// Lines keyed into a ticket as the entry field does it, and the ticket read back.
#pragma once

#include "entry/ticket.h"

/// Keys one line, such as "123-50", under the kind that a caption names.
void keyLine(Ticket &ticket, const QString &caption, const QString &text);

/// All rows, such as "1: 123=50", grids counted from 1, each from its row 1 down.
QStringList rowsOf(const Ticket &ticket);
