// SPDX-License-Identifier: MIT
// Builders: each turns a keyed line that has passed the checks of its form into rows of the
// ticket's grids. A builder shows its own refusals and gives no status: its caller goes on the
// same way whether the line was taken or refused.
#pragma once

#include "entry/ticket.h"

void tongup(Ticket &ticket);   ///< "บน": straight on top
void tongdown(Ticket &ticket); ///< "ล่าง": bottom
void todup(Ticket &ticket);    ///< "โต๊ด": any order, on top
void runup(Ticket &ticket);    ///< "วิ่งบน": one digit anywhere on top
void rundown(Ticket &ticket);  ///< "วิ่งล่าง": one digit anywhere on the bottom
void tongtod(Ticket &ticket);  ///< "ตรง+โต๊ด": the full amount on both
void downAndup(Ticket &ticket); ///< "บน+ล่าง": the full amount on both, run bets for one digit

/// "กลับบน" and "กลับล่าง": KeyedAmount on the number as keyed, KeyedTryAmount on each other order of
/// its digits, all straight. The rows of all orders are searched before the first is written and
/// not again: a row found moves down when another is inserted above it, and what is then added
/// lands on the row above. Keyers reckon with that; it stays.
void kubup(Ticket &ticket);
void kubdown(Ticket &ticket);

/// "19 ประตู": the nineteen numbers of two digits that hold the keyed digit. @p kind is DoorsTop
/// or DoorsBottom; with any other nothing is written.
void numpato(Ticket &ticket, BetKind kind);

/// "00-99": the ten doubles. @p kind is SweepTop or SweepBottom; with any other nothing is written.
void soonkow(Ticket &ticket, BetKind kind);

/// Calls the builder of a kind.
void runBuilder(Ticket &ticket, BetKind kind);
