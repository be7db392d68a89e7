// SPDX-License-Identifier: MIT
// Conversions between texts and numbers, and sums with an overflow check. Amounts are whole baht.
#pragma once

#include <QString>
#include <QStringView>
#include <QVariant>

#include <initializer_list>
#include <span>

/// Removes spaces on both sides. Unlike QString::trimmed() it keeps tabs and no-break spaces.
QString trimBlanks(QStringView text);

/// Returns an amount in the format "#,##": whole baht with thousands commas, halves rounded away
/// from zero, "" for zero, a leading minus for a loss. 1234.5 gives "1,235".
QString formatBaht(double amount);

/// Converts a text to a number. Accepts spaces around it, a sign, thousands commas, decimals and an
/// exponent; "." is the decimal point in every region. Throws "Type mismatch" for anything else,
/// including the empty text, and "Overflow" for a number beyond the range of double.
double CDbl(QStringView text);

/// Converts a value read from the Ledger to a number, a text with CDbl(). Throws "Invalid use of
/// Null" for NULL.
double numberOf(const QVariant &value);

/// Rounds to a 32-bit integer, halves to even. Throws "Overflow" if it is out of range.
qint32 CLng(double value);
qint32 CLng(QStringView text); ///< CLng() of CDbl()

/// Rounds to a 16-bit integer, halves to even. Throws "Overflow" if it is out of range.
qint16 CInt(double value);
qint16 CInt(QStringView text); ///< CInt() of CDbl()

/// Adds amounts from left to right. Throws "Overflow" as soon as the sum exceeds 32 bits.
qint32 addLong(std::span<const qint32> amounts);
qint32 addLong(std::initializer_list<qint32> amounts);
