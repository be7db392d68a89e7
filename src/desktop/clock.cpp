// SPDX-License-Identifier: MIT
#include "desktop/clock.h"

#include <utility>

namespace {

Clock installedClock;

} // namespace

Clock setClock(Clock clock)
{
    return std::exchange(installedClock, std::move(clock));
}

QDateTime currentDateTime()
{
    return installedClock ? installedClock() : QDateTime::currentDateTime();
}
