// SPDX-License-Identifier: MIT
// Creates an empty Ledger. The program itself never does: only make-empty-ledger, which runs during
// the build, and tests use this.
#pragma once

#include <QString>

/// Creates a Ledger at @p path with eight tables, default rates and the customer "-". Throws
/// RunTimeError if the file or its WAL exists, or if it cannot be written.
void makeEmptyLedger(const QString &path);
