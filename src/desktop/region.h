// SPDX-License-Identifier: MIT
// Dates and times in the format of the machine's region. Under a Thai region years are those of
// the Buddhist era (2569 for 2026), as on a Thai desktop.
#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>

/// Returns the region whose date format the machine uses.
QLocale machineRegion();

/// Makes machineRegion() return @p region. For tests.
void setMachineRegion(const QLocale &region);

/// Returns a date in the region's short format with the full year, such as "22/11/2569".
QString shortDate(QDate day, const QLocale &region = machineRegion());

/// Returns a date in the region's long format, with the name of the month.
QString longDate(QDate day, const QLocale &region = machineRegion());

/// Returns hours and minutes in the region's format.
QString shortTime(QTime time, const QLocale &region = machineRegion());
