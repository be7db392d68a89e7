// SPDX-License-Identifier: MIT
// The current date and time. Tests can replace the clock.
#pragma once

#include <QDateTime>

#include <functional>

using Clock = std::function<QDateTime()>;

/// Sets the clock and returns the previous one. An empty function means the system clock.
Clock setClock(Clock clock);

/// Returns the clock's date and time, for the system clock in local time.
QDateTime currentDateTime();
