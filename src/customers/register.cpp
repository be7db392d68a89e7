// SPDX-License-Identifier: MIT
#include "customers/register.h"

#include "ledger/ledger.h"
#include "runtime/values.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Columns{
    GridColumn{PlaceColumn, u"ลำดับ"},
    GridColumn{NameColumn, u" ชื่อลูกค้า", Qt::AlignLeft},
    GridColumn{TelephoneColumn, u"เบอร์ติดต่อ"},
    GridColumn{PercentColumn, u"ส่วนลด (%)"},
};

/// Returns the key for a new customer.
qint32 SetupNewData()
{
    return nextKey(u"tblMember"_s, u"MPK"_s);
}

} // namespace

int listCustomers(SpreadModel &list, const QString &part, ProgressBar &progress)
{
    list.setup(PercentColumn, 1);
    list.setTitles(FirstHeaderRow, Columns, true);
    RecordsetA.open(
        u" SELECT tblMember.* FROM tblMember WHERE  ifnull([Mname], '')  Like ? and [MPK] > 0 "
        "ORDER BY Mname COLLATE ThaiOrder"_s,
        {u'%' + part + u'%'});
    const int count = RecordsetA.recordCount();
    list.setRows(count);
    if (count > 0)
        progress.start(count);
    for (int row = 1; !RecordsetA.eof(); ++row, RecordsetA.moveNext()) {
        list.setText(row, 0, RecordsetA.field(u"MPK"_s).toString());
        list.setText(row, PlaceColumn, QString::number(row));
        list.setText(row, NameColumn, u' ' + RecordsetA.field(u"Mname"_s).toString());
        list.setText(row, TelephoneColumn, u'0' + RecordsetA.field(u"Mber"_s).toString());
        list.setText(row, PercentColumn, RecordsetA.field(u"MPercen"_s).toString());
        progress.step();
    }
    RecordsetA.close();
    progress.finish();
    return count;
}

int countCustomersNamed(const QString &name)
{
    RecordsetA.open(u"SELECT * FROM tblMember  WHERE [Mname] = '"_s + trimBlanks(name)
                    + u"' COLLATE AnyCase ORDER BY [MPK] "_s);
    const int count = RecordsetA.recordCount();
    RecordsetA.close();
    return count;
}

void addCustomer(const Customer &customer)
{
    const qint32 key = SetupNewData();
    RecordsetA.openTable(u"tblMember"_s);
    RecordsetA.set(u"MPK"_s, key);
    RecordsetA.set(u"Mname"_s, trimBlanks(customer.name));
    RecordsetA.set(u"Mber"_s, trimBlanks(customer.telephone));
    RecordsetA.set(u"MPercen"_s, trimBlanks(customer.percent));
    RecordsetA.update();
    RecordsetA.close();
}

void changeCustomer(qint32 key, const QString &column, const QString &text)
{
    RecordsetA.openRow(u"tblMember"_s, u"MPK"_s, key);
    RecordsetA.set(column, trimBlanks(text));
    RecordsetA.update();
    RecordsetA.close();
}

bool hasLines(qint32 key)
{
    RecordsetA.open(u"SELECT 1 FROM tblNumber WHERE NameFK = ?1 "
                    "UNION ALL SELECT 1 FROM tblNumberCut WHERE NameFK = ?1 LIMIT 1"_s,
                    {key});
    const bool found = RecordsetA.recordCount() > 0;
    RecordsetA.close();
    return found;
}

void deleteCustomer(qint32 key)
{
    LedgerConnection->run(u"DELETE FROM tblMember WHERE [MPK] = ?"_s, {key});
}

QString cleanedName(QString name)
{
    for (const QChar unwanted : u"'%*"_s)
        name.remove(unwanted);
    return name;
}
