// SPDX-License-Identifier: MIT
// The tables of a Ledger.
#pragma once

#include <array>
#include <span>

class Database;

/// Marks a file as a Ledger of this program, in PRAGMA application_id.
inline constexpr int LedgerApplicationId = 0x4d444c31; // "MDL1"

/// A column of a table and what it is declared as.
struct TableColumn
{
    const char *name;
    const char *declaration;
};

/// The payout rates in tblMoney, in the order of the classes of bets.
inline constexpr std::array RateColumns{
    TableColumn{"3up", "INTEGER DEFAULT 500"},  TableColumn{"3tod", "INTEGER DEFAULT 100"},
    TableColumn{"2up", "INTEGER DEFAULT 70"},   TableColumn{"2tod", "INTEGER DEFAULT 12"},
    TableColumn{"runup", "INTEGER DEFAULT 3"},  TableColumn{"3down", "INTEGER DEFAULT 100"},
    TableColumn{"2down", "INTEGER DEFAULT 70"}, TableColumn{"rundown", "INTEGER DEFAULT 4"},
};

/// A result and its money in tblTrue and tblNumLog, the prizes first. moneyup is the agent's profit
/// and moneydown the payout, whatever their names say. numdate is a day as "2026-11-22", which
/// sorts by the calendar.
inline constexpr std::array ResultColumns{
    TableColumn{"num3up", "TEXT DEFAULT ''"},      TableColumn{"num3down1", "TEXT DEFAULT ''"},
    TableColumn{"num3down2", "TEXT DEFAULT ''"},   TableColumn{"num3down3", "TEXT DEFAULT ''"},
    TableColumn{"num3down4", "TEXT DEFAULT ''"},   TableColumn{"num2down", "TEXT DEFAULT ''"},
    TableColumn{"numdate", "TEXT DEFAULT ''"},     TableColumn{"moneyup", "NUMERIC DEFAULT 0"},
    TableColumn{"moneydown", "NUMERIC DEFAULT 0"},
};

struct LedgerTable
{
    const char *name;
    const char *columns;                      ///< as CREATE TABLE takes them
    std::span<const TableColumn> listed = {}; ///< columns after those
};

/// The eight tables.
std::span<const LedgerTable> ledgerTables();

/// True if the open file has the mark and the eight tables of a Ledger.
bool isLedger(Database &file);
