// SPDX-License-Identifier: MIT
// The Ledger as all forms share it: the one connection, the two working slots, and the helpers
// that every room uses.
#pragma once

#include "ledger/recordset.h"

#include <QStringList>

#include <memory>

/// Open from ConnectLedger() to CloseLedger(); no form opens one of its own.
extern std::unique_ptr<Connection> LedgerConnection;

/// The two working slots. A procedure that holds one must not call another that reuses it.
/// RecordsetB is for what is asked while RecordsetA is held: next keys, names, hot numbers.
extern Recordset RecordsetA;
extern Recordset RecordsetB;

/// Who keys, written to each bet line; set at start and never changed after.
extern QString CurrentUser;

/// Opens data/ztkdata.ZDB below the program's folder. On failure shows SQLite's words and
/// ends the program with status 1.
void ConnectLedger();

/// Closes the Ledger if it is open. A clean end leaves one file and nothing beside it. Ends the
/// program with the report if the file was deleted or replaced while it was open.
void CloseLedger();

/// The largest @p key of @p table plus 1, or 1 on an empty table. Asked anew before each row,
/// so no counter in the file can be wrong.
qint32 nextKey(const QString &table, const QString &key);

/// Texts of @p display for a combo, one of each row of @p table in the order of @p order; a null
/// is an empty entry.
QStringList FillCombo(const QString &table, const QString &order, const QString &display);

/// Key of the row whose @p textColumn is the text of a combo, blanks around it left out, letters
/// without regard to case. "-" and "" are key 0, no customer. A text that is not in the table is
/// added to it with the next key. A key above 32,767 raises "Overflow".
qint16 LookupKey(const QString &comboText, const QString &table, const QString &key,
                 const QString &textColumn);
