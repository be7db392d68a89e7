// SPDX-License-Identifier: MIT
// The program works on a ready-made Ledger. Only make-empty-ledger, a program of the build, and tests
// make one.
#pragma once

#include <QString>

/// Makes an empty Ledger at @p path: eight tables, default rates, the customer "-". Raises
/// RunTimeError when the file exists or cannot be written.
void makeEmptyLedger(const QString &path);
