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

/// Calls the builder of a kind. A kind whose builder does not exist yet is refused with a box.
void runBuilder(Ticket &ticket, BetKind kind);
