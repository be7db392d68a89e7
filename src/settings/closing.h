// SPDX-License-Identifier: MIT
// Closes a draw or wipes the Ledger. Both end the program, so that no page keeps showing data that
// was deleted.
#pragma once

#include <functional>

/// Returns true if any of the eight boards has a row. A page that is open counts as it is, filtered
/// or not; otherwise the boards are loaded.
using BoardShowsRows = std::function<bool()>;

/// Asks for confirmation, then deletes the bets, those laid off, the discounts and the hot numbers,
/// appends the result checked last to the history, shows a box and ends the program. Returns only
/// if nothing was changed: after a box if the boards are empty, or on Cancel. There is no
/// transaction: if it throws RunTimeError, the statements before it stay in effect.
void closeDraw(const BoardShowsRows &boardShowsRows);

/// Asks twice for confirmation, then deletes everything but the rates, the result checked last and
/// customer "-", shows a box and ends the program. Returns only on Cancel, with nothing changed.
void wipeLedger();
