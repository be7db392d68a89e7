// SPDX-License-Identifier: MIT
// Filing a ticket: the one place where bets enter the Ledger.
#pragma once

#include "entry/ticket.h"
#include "widgets/progressbar.h"

#include <optional>

/// The customer of a ticket as the page shows him.
struct TicketCustomer
{
    QString name;
    QString percent;
};

/// The customer whom a ticket will be filed for that is saved with @p name; nothing if there is
/// none or the Ledger cannot be read. "_" in a name stands for any letter.
std::optional<TicketCustomer> ticketCustomer(const QString &name);

/// The spelling under which a tod number of 3 or 2 digits is filed: the lowest rearrangement of
/// its digits that the Ledger holds in that class, since a tod bet pays on any order and all
/// bets of a family should stand together; else the number as keyed. Lines of customers that no
/// longer exist do not count.
QString todSpelling(const QString &number);

/// Writes one bet line for each row of the grids, for the customer named by @p customer, row by
/// row: each is durable before the next is begun, and there is no way back. Raises RunTimeError
/// with the rows written up to then kept.
void saveLines(const Ticket &ticket, const QString &customer, ProgressBar &progress);

/// Writes the ticket's discount money, given as its "#,##" text. An empty text writes nothing.
void saveDiscount(const QString &discount);

/// Discount money of all tickets of the draw, in baht. Raises "Overflow" beyond 32 bits.
qint32 savedDiscounts();
