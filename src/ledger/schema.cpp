// SPDX-License-Identifier: MIT
#include "ledger/schema.h"

#include "ledger/connection.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Table
{
    const char *name;
    const char *columns;
};

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
    Table{"tblMember", "MPK INTEGER PRIMARY KEY, Mname TEXT, Mber TEXT DEFAULT '', "
                       "Mpercen TEXT DEFAULT '0'"},
    Table{"tblNumber", BetLineColumns},
    Table{"tblNumberCut", BetLineColumns},
    Table{"tblNumberFix", "PK INTEGER PRIMARY KEY, Fnumber TEXT"},
    Table{"tblMoney", "PK INTEGER PRIMARY KEY, [3up] INTEGER DEFAULT 500, "
                      "[3tod] INTEGER DEFAULT 100, [2up] INTEGER DEFAULT 70, "
                      "[2tod] INTEGER DEFAULT 12, runup INTEGER DEFAULT 3, "
                      "[3down] INTEGER DEFAULT 100, [2down] INTEGER DEFAULT 70, "
                      "rundown INTEGER DEFAULT 4"},
    Table{"tblRMoney", "PK INTEGER PRIMARY KEY, rMoney NUMERIC"},
    Table{"tblTrue", ResultColumns},
    Table{"tblNumLog", ResultColumns},
};

// Boards, scans and spelling searches read by class and number, the lists of buyers by customer.
// Whose line it is stands in the index as well, so that the lines behind a number are listed
// without looking up each in the table.
constexpr std::array Indexes{
    "CREATE INDEX %1_class ON %1 (num23, updown, numType, numValue, numBuy, NameFK, nuser)",
    "CREATE INDEX %1_buyer ON %1 (NameFK)",
};

} // namespace

bool isLedger(Connection &file)
{
    if (file.run(u"PRAGMA application_id"_s).rows.value(0).value(0).toInt() != LedgerApplicationId)
        return false;
    for (const Table &table : Tables) {
        const ResultRows found =
            file.run(u"SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ?"_s,
                     {QString::fromLatin1(table.name)});
        if (found.rows.isEmpty())
            return false;
    }
    return true;
}

void makeEmptyLedger(const QString &path)
{
    const auto file = Connection::create(path);
    file->run(u"PRAGMA journal_mode = WAL"_s);
    file->run(u"PRAGMA application_id = %1"_s.arg(LedgerApplicationId));
    for (const Table &table : Tables)
        file->run(
            u"CREATE TABLE %1 (%2)"_s.arg(QLatin1String(table.name), QLatin1String(table.columns)));
    for (const char *index : Indexes) {
        for (const QString &table : {u"tblNumber"_s, u"tblNumberCut"_s})
            file->run(QString::fromLatin1(index).arg(table));
    }
    file->run(u"INSERT INTO tblMoney (PK) VALUES (1)"_s);
    file->run(u"INSERT INTO tblTrue (PK) VALUES (1)"_s);
    file->run(u"INSERT INTO tblMember (MPK, Mname) VALUES (0, '-')"_s);
}
