// SPDX-License-Identifier: MIT
// The two endings of a period of work: closing a draw, and wiping the Ledger. After both the
// program is gone, so that no page goes on showing what is no longer there.
#pragma once

#include <functional>

/// Tells whether any of the eight boards shows a row. Asking loads the board where it is not
/// open; one that is filtered answers for what it shows.
using BoardShowsRows = std::function<bool()>;

/// " ลบข้อมูลงวดนี้": asks, then empties the book, the lines laid off, the discounts and the hot
/// numbers, appends the result checked last to the history, says so and ends the program. Comes
/// back where the boards show nothing, which is refused, and on Cancel, with nothing changed.
/// Raises RunTimeError with the statements run up to then kept.
void closeDraw(const BoardShowsRows &boardShowsRows);

/// " ลบข้อมูลทั้งหมด": asks twice, then empties all but the rates and the result checked last, says
/// so and ends the program. Comes back on Cancel with nothing changed.
void wipeLedger();
