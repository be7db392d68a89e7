// SPDX-License-Identifier: MIT
#include "ledger/schema.h"

#include "ledger/database.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A bet line: whole baht in numBuy; updown -1 is top, 0 bottom. Numbers are texts, since "012"
// is not "12".
constexpr const char *BetLineColumns =
    "NPK INTEGER PRIMARY KEY, NameFK INTEGER, num23 INTEGER, updown INTEGER, "
    "numType INTEGER, numValue TEXT, numBuy INTEGER, nuser TEXT";

// moneyup is the agent's profit and moneydown the payout, whatever their names say. numdate is
// a day as "2026-11-22", which sorts by the calendar.
constexpr const char *ResultColumns =
    "PK INTEGER PRIMARY KEY, num3up TEXT DEFAULT '', num3down1 TEXT DEFAULT '', "
    "num3down2 TEXT DEFAULT '', num3down3 TEXT DEFAULT '', num3down4 TEXT DEFAULT '', "
    "num2down TEXT DEFAULT '', numdate TEXT DEFAULT '', moneyup NUMERIC DEFAULT 0, "
    "moneydown NUMERIC DEFAULT 0";

constexpr std::array Tables{
    // No customer ever has an empty discount: those named only by a ticket get "0" too.
    LedgerTable{"tblMember", "MPK INTEGER PRIMARY KEY, Mname TEXT, Mber TEXT DEFAULT '', "
                             "Mpercen TEXT DEFAULT '0'"},
    LedgerTable{"tblNumber", BetLineColumns},
    LedgerTable{"tblNumberCut", BetLineColumns},
    LedgerTable{"tblNumberFix", "PK INTEGER PRIMARY KEY, Fnumber TEXT"},
    LedgerTable{"tblMoney", "PK INTEGER PRIMARY KEY, [3up] INTEGER DEFAULT 500, "
                            "[3tod] INTEGER DEFAULT 100, [2up] INTEGER DEFAULT 70, "
                            "[2tod] INTEGER DEFAULT 12, runup INTEGER DEFAULT 3, "
                            "[3down] INTEGER DEFAULT 100, [2down] INTEGER DEFAULT 70, "
                            "rundown INTEGER DEFAULT 4"},
    LedgerTable{"tblRMoney", "PK INTEGER PRIMARY KEY, rMoney NUMERIC"},
    LedgerTable{"tblTrue", ResultColumns},
    LedgerTable{"tblNumLog", ResultColumns},
};

} // namespace

std::span<const LedgerTable> ledgerTables()
{
    return Tables;
}

bool isLedger(Database &file)
{
    if (file.run(u"PRAGMA application_id"_s).rows.value(0).value(0).toInt() != LedgerApplicationId)
        return false;
    return std::all_of(Tables.begin(), Tables.end(), [&file](const LedgerTable &table) {
        const QString find = u"SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?"_s;
        return !file.run(find, {QString::fromLatin1(table.name)}).rows.isEmpty();
    });
}
