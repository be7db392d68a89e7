// SPDX-License-Identifier: MIT
// Keys of the combo boxes for customer names, on the ticket and on the board.
#pragma once

#include <functional>

class Combo;

/// Key filter for @p combo, to be called from Combo::keyPress. Enter calls @p enter, any other key
/// completes the name, which has at most 50 characters. Returns the code that the combo is to
/// handle, or 0 for none.
int nameKeyPress(Combo &combo, int code, const std::function<void()> &enter);
