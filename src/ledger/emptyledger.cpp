// SPDX-License-Identifier: MIT
#include "ledger/emptyledger.h"

#include "ledger/connection.h"
#include "ledger/schema.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// Boards, scans and todSpelling() read by class and number, lists of buyers by customer. The
// first index also has the customer and the user, so that the lines of a number are listed without
// reading the table.
constexpr std::array Indexes{
    "CREATE INDEX %1_class ON %1 (num23, updown, numType, numValue, numBuy, NameFK, nuser)",
    "CREATE INDEX %1_buyer ON %1 (NameFK)",
};

} // namespace

void makeEmptyLedger(const QString &path)
{
    const auto file = Connection::create(path);
    file->run(u"PRAGMA journal_mode = WAL"_s);
    file->run(u"PRAGMA application_id = %1"_s.arg(LedgerApplicationId));
    for (const LedgerTable &table : ledgerTables()) {
        QString columns = QString::fromLatin1(table.columns);
        for (const TableColumn &column : table.listed)
            columns +=
                u", [%1] %2"_s.arg(QLatin1String(column.name), QLatin1String(column.declaration));
        file->run(u"CREATE TABLE %1 (%2)"_s.arg(QLatin1String(table.name), columns));
    }
    for (const char *index : Indexes) {
        for (const QString &table : {u"tblNumber"_s, u"tblNumberCut"_s})
            file->run(QString::fromLatin1(index).arg(table));
    }
    file->run(u"INSERT INTO tblMoney (PK) VALUES (1)"_s);
    file->run(u"INSERT INTO tblTrue (PK) VALUES (1)"_s);
    file->run(u"INSERT INTO tblMember (MPK, Mname) VALUES (0, '-')"_s);
}
