// SPDX-License-Identifier: MIT
#include "settings/hotnumberlist.h"

#include "entry/digitorders.h"
#include "ledger/ledger.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Columns{
    GridColumn{HotPlaceColumn, u"ลำดับ"},
    GridColumn{HotNumberColumn, u" เลขตรง"},
    GridColumn{HotTodColumn, u"เลขโต๊ด"},
    GridColumn{HotTodColumn + 1, u" ", Qt::AlignLeft},
};

/// Returns the key for a new hot number. Throws "Overflow" if it exceeds 16 bits.
qint16 SetupNewData3()
{
    return CInt(double(nextKey(u"tblNumberFix"_s, u"PK"_s)));
}

} // namespace

QString hotTodForm(const QString &number)
{
    const QString digits = trimBlanks(number);
    if (digits.size() != 2 && digits.size() != 3)
        return QString();
    if (digits.count(digits.front()) == digits.size())
        return u"-"_s;
    return listedOrders(digits).join(u" , "_s);
}

void listHotNumbers(SpreadModel &list)
{
    list.setup(int(Columns.size()), 1);
    list.setTitles(FirstHeaderRow, Columns, true);
    RecordsetA.open(u" SELECT  tblNumberFix.* FROM tblNumberFix ORDER BY PK desc"_s);
    list.setRows(RecordsetA.recordCount());
    for (int row = 1; !RecordsetA.eof(); ++row, RecordsetA.moveNext()) {
        const QString number = RecordsetA.field(u"Fnumber"_s).toString();
        list.setText(row, 0, RecordsetA.field(u"PK"_s).toString());
        list.setText(row, HotPlaceColumn, QString::number(row));
        list.setText(row, HotNumberColumn, number);
        list.setText(row, HotTodColumn, hotTodForm(number));
    }
    RecordsetA.close();
}

bool isHotNumber(const QString &number)
{
    RecordsetA.open(u" SELECT  tblNumberFix.* FROM tblNumberFix WHERE [Fnumber]  Like ?"
                    "  ORDER BY PK"_s,
                    {trimBlanks(number)});
    const bool found = RecordsetA.recordCount() > 0;
    RecordsetA.close();
    return found;
}

void addHotNumber(const QString &number)
{
    const qint16 key = SetupNewData3();
    RecordsetA.openTable(u"tblNumberFix"_s);
    RecordsetA.set(u"PK"_s, key);
    RecordsetA.set(u"Fnumber"_s, number);
    RecordsetA.update();
    RecordsetA.close();
}

void deleteHotNumber(qint32 key)
{
    LedgerConnection->run(u"DELETE FROM tblNumberFix WHERE [PK] = ?"_s, {key});
}

void deleteAllHotNumbers()
{
    LedgerConnection->run(u"DELETE FROM tblNumberFix"_s);
}
