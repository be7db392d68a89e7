// SPDX-License-Identifier: MIT
// Builders: each turns a line that splitLine() has accepted into rows of the ticket's grids. A
// builder checks number and amount first and shows a box if one is refused. It returns no status,
// since Form1 does the same after a refused line as after an accepted one.
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
/// its digits, all straight. The rows of all orders are searched before the first one is written. A
/// found row moves down when a number is inserted above it, so its amount is then added to a row
/// above it. This behaviour is intended and must not change.
void kubup(Ticket &ticket);
void kubdown(Ticket &ticket);

/// "19 ประตู": the nineteen numbers of two digits that contain the keyed digit. @p kind must be
/// DoorsTop or DoorsBottom; otherwise nothing is written.
void numpato(Ticket &ticket, BetKind kind);

/// "00-99": the ten doubles. @p kind must be SweepTop or SweepBottom; otherwise nothing is written.
void soonkow(Ticket &ticket, BetKind kind);

/// Calls the builder of a kind. Does nothing for NoKind.
void runBuilder(Ticket &ticket, BetKind kind);
