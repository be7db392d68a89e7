// SPDX-License-Identifier: MIT
// The Ledger's tables. The program works on a ready-made file; only the maker of the empty
// Ledger, a program of the build, creates tables.
#pragma once

#include <QString>

class Connection;

/// True if the open file carries the mark and the eight tables of a Ledger.
bool isLedger(Connection &file);

/// Makes an empty Ledger at @p path: eight tables, default rates, the customer "-". Raises
/// RunTimeError when the file exists or cannot be written.
void makeEmptyLedger(const QString &path);
