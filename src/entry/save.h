// SPDX-License-Identifier: MIT
// Saves tickets. No other file inserts bets into the Ledger.
#pragma once

#include "entry/ticket.h"
#include "widgets/progressbar.h"

#include <optional>

/// Name and discount of a ticket's customer, as Form1 shows them.
struct TicketCustomer
{
    QString name;
    QString percent;
};

/// Returns the customer named @p name, case-insensitive, or nothing if there is none or the Ledger
/// cannot be read. saveLines() saves a ticket under this name for the same customer. Without an
/// exact match the name is a LIKE pattern: "_" matches any character.
std::optional<TicketCustomer> ticketCustomer(const QString &name);

/// Returns the spelling under which a tod number of 3 or 2 digits is saved. A tod bet wins in any
/// order of its digits, so all bets on the same digits should have the same number. It is the
/// first in text order of otherOrders() that has a line of its class in the Ledger, else the number
/// as keyed. Lines of customers that no longer exist do not count.
QString todSpelling(const QString &number);

/// Writes one bet line for each row of the grids, for the customer named @p customer. There is no
/// transaction: each row is durable before the next one is written. If it throws RunTimeError, the
/// rows written so far stay in the Ledger.
void saveLines(const Ticket &ticket, const QString &customer, ProgressBar &progress);

/// Writes the discount of a ticket in baht, given as a text in the format "#,##". Writes nothing
/// for an empty text.
void saveDiscount(const QString &discount);

/// Returns the discounts of all tickets of the draw, in baht. Throws "Overflow" if they exceed 32
/// bits.
qint32 savedDiscounts();
