// SPDX-License-Identifier: MIT
// The orders of a number's digits, in the sequences that the screens use.
#pragma once

#include <QStringList>

/// Returns the distinct orders that a turned bet writes, the number itself first. The number must
/// have two or three digits that are not all equal.
QStringList turnedOrders(const QString &number);

/// Returns the same orders in the sequence in which the settings list them.
QStringList listedOrders(const QString &number);

/// Returns all orders of a number's first three digits except the order as given. Equal digits
/// yield duplicates, which can include the number itself; a single digit is returned five times.
QStringList otherOrders(const QString &number);
