// SPDX-License-Identifier: MIT
// The orders of a number's digits, as several screens list them. An order that takes a digit the
// number does not have leaves it out.
#pragma once

#include <QStringList>

/// The orders that a turned bet writes, in that order: the number itself first, each once. Of two
/// or three digits, not all equal.
QStringList turnedOrders(const QString &number);

/// The same orders as the settings list them.
QStringList listedOrders(const QString &number);

/// The orders of the first three digits, or of the only two, apart from the number as it stands.
/// Equal digits give equal orders.
QStringList otherOrders(const QString &number);
