// SPDX-License-Identifier: MIT
// Dates and times as people of the machine's region read them. Under a Thai region the year is
// the Buddhist era (2569 for 2026), as on a Thai desktop.
#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>

/// The region that the machine writes dates in.
QLocale machineRegion();

/// Has machineRegion() give @p region: for tests.
void setMachineRegion(const QLocale &region);

/// Day, month and full year in the region's short order, such as "22/11/2569".
QString shortDate(QDate day, const QLocale &region = machineRegion());

/// The region's long date, with the name of the month.
QString longDate(QDate day, const QLocale &region = machineRegion());

/// Hours and minutes as the region writes them.
QString shortTime(QTime time, const QLocale &region = machineRegion());
