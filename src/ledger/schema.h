// SPDX-License-Identifier: MIT
// The tables of a Ledger.
#pragma once

#include <array>
#include <span>

class Database;

/// PRAGMA application_id of a Ledger.
inline constexpr int LedgerApplicationId = 0x4d444c31; // "MDL1"

/// A column of a table with its SQL declaration.
struct TableColumn
{
    const char *name;
    const char *declaration;
};

/// The columns of the payout rates in tblMoney, in the order of the classes of bets.
inline constexpr std::array RateColumns{
    TableColumn{"3up", "INTEGER DEFAULT 500"},  TableColumn{"3tod", "INTEGER DEFAULT 100"},
    TableColumn{"2up", "INTEGER DEFAULT 70"},   TableColumn{"2tod", "INTEGER DEFAULT 12"},
    TableColumn{"runup", "INTEGER DEFAULT 3"},  TableColumn{"3down", "INTEGER DEFAULT 100"},
    TableColumn{"2down", "INTEGER DEFAULT 70"}, TableColumn{"rundown", "INTEGER DEFAULT 4"},
};

/// The columns of tblTrue and tblNumLog: the prizes of a draw, its date and its money. moneyup is
/// the agent's profit and moneydown the payout, despite their names. numdate has the form
/// "2026-11-22", so that dates sort as texts.
inline constexpr std::array ResultColumns{
    TableColumn{"num3up", "TEXT DEFAULT ''"},      TableColumn{"num3down1", "TEXT DEFAULT ''"},
    TableColumn{"num3down2", "TEXT DEFAULT ''"},   TableColumn{"num3down3", "TEXT DEFAULT ''"},
    TableColumn{"num3down4", "TEXT DEFAULT ''"},   TableColumn{"num2down", "TEXT DEFAULT ''"},
    TableColumn{"numdate", "TEXT DEFAULT ''"},     TableColumn{"moneyup", "NUMERIC DEFAULT 0"},
    TableColumn{"moneydown", "NUMERIC DEFAULT 0"},
};

/// A table of the Ledger.
struct LedgerTable
{
    const char *name;
    const char *columns;                      ///< in the syntax of CREATE TABLE
    std::span<const TableColumn> listed = {}; ///< further columns
};

/// Returns the eight tables of a Ledger.
std::span<const LedgerTable> ledgerTables();

/// Returns true if the open file has the application_id and the tables of a Ledger.
bool isLedger(Database &file);
