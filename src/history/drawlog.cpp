// SPDX-License-Identifier: MIT
#include "history/drawlog.h"

#include "desktop/region.h"
#include "ledger/ledger.h"
#include "runtime/values.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int EmptyColumn = LogProfitColumn + 1; // takes the remaining width

constexpr std::array LogColumns{
    GridColumn{LogDateColumn, u"งวดที่"},
    GridColumn{LogTopColumn, u"3 ตัวบน"},
    GridColumn{LogBottomColumn, u"3 ตัวล่าง"},
    GridColumn{LogBottomTwoColumn, u"2 ตัวล่าง"},
    GridColumn{LogPayoutColumn, u"เสียรวม", Qt::AlignRight},
    GridColumn{LogProfitColumn, u"กำไร", Qt::AlignRight},
    GridColumn{EmptyColumn, u"", Qt::AlignLeft},
};

QString fieldText(const QString &column)
{
    return RecordsetA.field(column).toString();
}

/// Returns the date in the short format of the region, or the stored text if that is not a date. A
/// draw that was closed before any result was checked has none.
QString dateText()
{
    const QString stored = fieldText(u"numdate"_s);
    const QDate day = QDate::fromString(stored, Qt::ISODate);
    return day.isValid() ? shortDate(day) : stored;
}

QString moneyText(const QString &column)
{
    const QVariant amount = RecordsetA.field(column);
    return amount.isNull() ? QString() : formatBaht(numberOf(amount));
}

void writeDraw(SpreadModel &grid, int row)
{
    const QStringList bottom{fieldText(u"num3down1"_s), fieldText(u"num3down2"_s),
                             fieldText(u"num3down3"_s), fieldText(u"num3down4"_s)};
    grid.setText(row, 0, fieldText(u"PK"_s));
    grid.setText(row, LogDateColumn, dateText());
    grid.setText(row, LogTopColumn, fieldText(u"num3up"_s));
    grid.setText(row, LogBottomColumn, bottom.join(u"  ,  "_s));
    grid.setText(row, LogBottomTwoColumn, fieldText(u"num2down"_s));
    grid.setText(row, LogProfitColumn, moneyText(u"moneyup"_s));
    grid.setText(row, LogPayoutColumn, moneyText(u"moneydown"_s));
}

} // namespace

void Loaddata(SpreadModel &grid, ProgressBar &progress)
{
    grid.setup(EmptyColumn, 1);
    grid.setTitles(FirstHeaderRow, LogColumns);
    RecordsetA.open(u"SELECT tblNumLog.* FROM tblNumLog  ORDER BY numdate desc, PK desc"_s);
    grid.setRows(RecordsetA.recordCount());
    if (grid.rows() > 0)
        progress.start(grid.rows());
    for (int row = 1; !RecordsetA.eof(); RecordsetA.moveNext(), ++row) {
        writeDraw(grid, row);
        progress.step();
    }
    if (grid.rows() > 0)
        progress.finish();
    RecordsetA.close();
}

void deleteClosedDraw(qint32 key)
{
    LedgerConnection->run(u"DELETE FROM tblNumLog WHERE [PK] = ?"_s, {key});
}
