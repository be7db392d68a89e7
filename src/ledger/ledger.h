// SPDX-License-Identifier: MIT
// The Ledger as all forms share it: the connection, two recordsets, and functions that several
// folders need.
#pragma once

#include "ledger/recordset.h"

#include <QStringList>

#include <memory>

/// The only connection; null before ConnectLedger() and after CloseLedger().
extern std::unique_ptr<Connection> LedgerConnection;

/// Recordsets for all statements. A function that uses one must not call a function that opens the
/// same one. RecordsetB is for lookups while RecordsetA is open: next keys, names, hot numbers.
extern Recordset RecordsetA;
extern Recordset RecordsetB;

/// Name of the user, written to each bet line. Set once at the start.
extern QString CurrentUser;

/// Opens data/ztkdata.ZDB in the program's folder. If that fails, shows a box with the error
/// message and ends the program with status 1.
void ConnectLedger();

/// Closes the Ledger if it is open, which removes the WAL. If the file was deleted or replaced
/// while it was open, shows a box that says so and ends the program with status 1.
void CloseLedger();

/// Returns the largest @p key of @p table plus 1, or 1 if the table is empty. To be called for each
/// new row: the program stores no counter, which could be wrong. Uses RecordsetB.
qint32 nextKey(const QString &table, const QString &key);

/// Returns the entries of a combo box: the texts of column @p display in all rows of @p table,
/// sorted by @p order. NULL becomes an empty entry. Uses RecordsetB.
QStringList FillCombo(const QString &table, const QString &order, const QString &display);

/// Returns the @p key of the row of @p table whose @p textColumn equals the text of a combo box.
/// The comparison is case-insensitive and ignores blanks around @p comboText. "-" and "" return 0,
/// which means no customer. A text that is not found is added unchanged, with the next key. Throws
/// "Overflow" if the key is above 32,767. Uses RecordsetB.
qint16 LookupKey(const QString &comboText, const QString &table, const QString &key,
                 const QString &textColumn);
