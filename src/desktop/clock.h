// SPDX-License-Identifier: MIT
// Today's date and time, with a seam for tests.
#pragma once

#include <QDateTime>

#include <functional>

using Clock = std::function<QDateTime()>;

/// Sets the clock and gives back the one before; an empty one means the machine's own.
Clock setClock(Clock clock);

/// What the clock says now, in local time.
QDateTime currentDateTime();
