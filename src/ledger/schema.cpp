// SPDX-License-Identifier: MIT
#include "ledger/schema.h"

#include "ledger/database.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A bet line. numBuy is in whole baht; updown is -1 for top, 0 for bottom. Numbers are texts, since
// "012" is not "12".
constexpr const char *BetLineColumns =
    "NPK INTEGER PRIMARY KEY, NameFK INTEGER, num23 INTEGER, updown INTEGER, "
    "numType INTEGER, numValue TEXT, numBuy INTEGER, nuser TEXT";

constexpr std::array Tables{
    // The default of Mpercen is for customers added by saving a ticket, which sets no discount.
    LedgerTable{"tblMember", "MPK INTEGER PRIMARY KEY, Mname TEXT, Mber TEXT DEFAULT '', "
                             "Mpercen TEXT DEFAULT '0'"},
    LedgerTable{"tblNumber", BetLineColumns},
    LedgerTable{"tblNumberCut", BetLineColumns},
    LedgerTable{"tblNumberFix", "PK INTEGER PRIMARY KEY, Fnumber TEXT"},
    LedgerTable{"tblMoney", "PK INTEGER PRIMARY KEY", RateColumns},
    LedgerTable{"tblRMoney", "PK INTEGER PRIMARY KEY, rMoney NUMERIC"},
    LedgerTable{"tblTrue", "PK INTEGER PRIMARY KEY", ResultColumns},
    LedgerTable{"tblNumLog", "PK INTEGER PRIMARY KEY", ResultColumns},
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
