// SPDX-License-Identifier: MIT
#include "entry/betgrid.h"

#include "runtime/values.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Columns{
    GridColumn{NumberColumn, u"เลข"},
    GridColumn{AmountColumn, u"บาท", Qt::AlignRight},
};

} // namespace

void setupBetGrid(SpreadModel &grid, const BetClass &betClass, int columns)
{
    const SpreadModel::Rebuild rebuild(grid);
    grid.setup(columns, 3);
    grid.setHeader(CaptionRow, NumberColumn,
                   {.text = betClass.caption.toString(), .bold = true, .span = 2});
    grid.setHeader(TotalRow, NumberColumn, {u"รวมเงิน"_s});
    grid.setHeader(TotalRow, AmountColumn,
                   {.text = u"0"_s, .alignment = Qt::AlignRight | Qt::AlignVCenter});
    grid.setTitles(TitleRow, Columns);
}

qint32 topTotal(const GridTotals &totals)
{
    return addLong(std::span(totals).first<TopClassCount>());
}

qint32 bottomTotal(const GridTotals &totals)
{
    return addLong(std::span(totals).subspan<TopClassCount>());
}

qint32 sumTotal(const GridTotals &totals)
{
    return addLong(totals);
}
