// SPDX-License-Identifier: MIT
#include "history/drawlog.h"

#include "ledger/ledger.h"
#include "platform/region.h"
#include "runtime/values.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct LogColumn
{
    const char16_t *header = u"";
    Qt::Alignment alignment;
};

constexpr std::array LogColumns{
    LogColumn{u"งวดที่", Qt::AlignCenter},    LogColumn{u"3 ตัวบน", Qt::AlignCenter},
    LogColumn{u"3 ตัวล่าง", Qt::AlignCenter}, LogColumn{u"2 ตัวล่าง", Qt::AlignCenter},
    LogColumn{u"เสียรวม", Qt::AlignRight},   LogColumn{u"กำไร", Qt::AlignRight},
    LogColumn{u"", Qt::AlignLeft},
};

QString fieldText(const QString &column)
{
    return RecordsetA.field(column).toString();
}

/// The day as people of the region write it. A draw closed before any was ever checked has none.
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

void setupDrawLog(SpreadModel &grid)
{
    grid.setup(int(LogColumns.size()), 1);
    for (int at = 0; at < int(LogColumns.size()); ++at) {
        const LogColumn &column = LogColumns[size_t(at)];
        grid.setHeader(FirstHeaderRow, at + 1,
                       {QString::fromUtf16(column.header), column.alignment | Qt::AlignVCenter});
        grid.setAlignment(at + 1, column.alignment);
    }
}

void Loaddata(SpreadModel &grid, ProgressBar &progress)
{
    setupDrawLog(grid);
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
