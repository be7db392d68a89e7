// SPDX-License-Identifier: MIT
// How values behave: texts into numbers, numbers into the "#,##" texts of the grids, and sums
// that cannot wrap round. Amounts are whole baht throughout.
#pragma once

#include <QString>
#include <QStringView>
#include <QVariant>

#include <initializer_list>
#include <span>

/// Takes away the blanks on both sides, and only blanks: a tab or a no-break space stays.
QString trimBlanks(QStringView text);

/// Text of an amount in the format "#,##": whole baht with thousands commas, a half rounded away
/// from zero, "" for zero, a leading minus for a loss. 1234.5 gives "1,235".
QString formatBaht(double amount);

/// A text as a number. Takes blanks around, a sign, thousands commas, decimals, an exponent.
/// Raises "Type mismatch" for anything else, the empty text above all, and "Overflow" for a
/// number beyond a double. The region has no say: "." is the decimal point everywhere.
double CDbl(QStringView text);

/// A value read from the Ledger as a number: a text as CDbl takes it, a number as it is. Raises "Invalid
/// use of Null" for no value.
double numberOf(const QVariant &value);

/// A number as a 32-bit whole number, a half going to the even neighbour; raises "Overflow".
qint32 CLng(double value);
qint32 CLng(QStringView text); ///< CLng of CDbl

/// A number as a 16-bit whole number, a half going to the even neighbour; raises "Overflow".
qint16 CInt(double value);
qint16 CInt(QStringView text); ///< CInt of CDbl

/// Sum of 32-bit amounts, added from the left; raises "Overflow" as soon as it leaves 32 bits.
qint32 addLong(std::span<const qint32> amounts);
qint32 addLong(std::initializer_list<qint32> amounts);
