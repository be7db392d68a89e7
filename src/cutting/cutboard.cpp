// SPDX-License-Identifier: MIT
#include "cutting/cutboard.h"

#include "entry/betgrid.h"
#include "entry/vocabulary.h"
#include "ledger/ledger.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<QStringView, 2> Captions{u"(  บน  )", u"(  ล่าง  )"};

constexpr std::array Columns{
    GridColumn{CutTypeColumn, u"ประเภท"},
    GridColumn{CutNumberColumn, u"เลข"},
    GridColumn{CutAmountColumn, u"บาท", Qt::AlignRight},
};

} // namespace

CutBoard::CutBoard()
{
    SetupSpread();
}

bool CutBoard::isEmpty() const
{
    return allEmpty(grids);
}

void CutBoard::SetupSpread()
{
    for (size_t list = 0; list < grids.size(); ++list) {
        SpreadModel &grid = grids[list];
        const SpreadModel::Rebuild rebuild(grid);
        grid.setup(CutAmountColumn, 3);
        grid.setHeader(CaptionRow, CutTypeColumn,
                       {.text = Captions[list].toString(), .bold = true, .span = 3});
        grid.setHeader(TotalRow, CutTypeColumn, {u"รวมเงิน"_s});
        grid.setHeader(TotalRow, CutTotalColumn,
                       {.text = u"0"_s, .alignment = Qt::AlignRight | Qt::AlignVCenter, .span = 2});
        grid.setTitles(TitleRow, Columns);
    }
}

void CutBoard::load(size_t list, bool updown, ProgressBar &progress)
{
    SpreadModel &grid = grids[list];
    const SpreadModel::Rebuild rebuild(grid);
    NumcutTotal = 0;
    RecordsetA.open(u"SELECT numType, numValue, Sum(numBuy) AS nMoney FROM tblNumberCut"
                    " WHERE [updown] = ? GROUP BY num23, numType, numValue"
                    " ORDER BY numType, num23 DESC, numValue"_s,
                    {updown});
    grid.setRows(RecordsetA.recordCount());
    if (grid.rows() == 0) {
        RecordsetA.close();
        grid.setText(TotalRow, CutTotalColumn, u"0"_s);
        return;
    }
    progress.start(grid.rows());
    for (int row = 1; !RecordsetA.eof(); RecordsetA.moveNext(), ++row) {
        const double money = numberOf(RecordsetA.field(u"nMoney"_s));
        NumcutTotal = addLong({NumcutTotal, CLng(money)});
        grid.setText(row, CutTypeColumn, oneWordLabel(RecordsetA.field(u"numType"_s).toInt()));
        grid.setText(row, CutNumberColumn, RecordsetA.field(u"numValue"_s).toString());
        grid.setText(row, CutAmountColumn, formatBaht(money));
        progress.step();
    }
    RecordsetA.close();
    grid.setText(TotalRow, CutTotalColumn, formatBaht(NumcutTotal));
}
