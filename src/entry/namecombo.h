// SPDX-License-Identifier: MIT
// The combos that hold the names of customers, on the ticket and on the board alike.
#pragma once

#include <functional>

class Combo;

/// Filter of the keys of @p combo: Enter calls @p enter, any other key completes the name, which has
/// at most 50 characters. Gives the code to pass on.
int nameKeyPress(Combo &combo, int code, const std::function<void()> &enter);
