// SPDX-License-Identifier: MIT
// The tables of a Ledger.
#pragma once

#include <array>
#include <span>

class Database;

/// Marks a file as a Ledger of this program, in PRAGMA application_id.
inline constexpr int LedgerApplicationId = 0x4d444c31; // "MDL1"

struct LedgerTable
{
    const char *name;
    const char *columns; ///< as CREATE TABLE takes them
};

/// The eight tables.
std::span<const LedgerTable> ledgerTables();

/// True if the open file has the mark and the eight tables of a Ledger.
bool isLedger(Database &file);
