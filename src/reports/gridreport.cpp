// SPDX-License-Identifier: MIT
#include "reports/gridreport.h"

#include "desktop/clock.h"
#include "desktop/region.h"
#include "runtime/values.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString fieldName(qsizetype at)
{
    return u"text"_s + QString::number(at + 1);
}

} // namespace

QList<ReportControl> columnControls(const ReportColumn &column, qsizetype at,
                                    const ColumnLook &look)
{
    constexpr int FieldTop = 20;
    const bool money = column.kind == ReportColumn::Money;
    const Qt::Alignment alignment = money ? Qt::AlignRight : Qt::AlignHCenter;
    return {
        {.section = ReportSection::PageHeader,
         .name = u"Label"_s + QString::number(column.label),
         .box = {column.heading.left, look.headingTop, column.heading.width, look.headingHeight},
         .style = {.points = look.headingPoints, .alignment = alignment, .bold = look.boldHeadings},
         .text = column.title.toString()},
        {.section = ReportSection::Detail,
         .name = fieldName(at),
         .box = {column.field.left, FieldTop, column.field.width, look.fieldHeight},
         .style =
             {.points = look.fieldPoints, .alignment = alignment, .whole = money, .amount = money}},
    };
}

GridReport::GridReport(ReportLayout layout, QList<ReportColumn> columns, int rulingFrom,
                       QList<const SpreadModel *> grids)
    : Report(std::move(layout)), m_columns(std::move(columns)), m_rulingFrom(rulingFrom),
      m_grids(std::move(grids))
{}

void GridReport::takeRowTotal()
{
    int longest = 0;
    for (const SpreadModel *grid : std::as_const(m_grids))
        longest = std::max(longest, grid->rows());
    m_row = 0;
    m_rowTotal = CInt(double(longest));
}

bool GridReport::ActiveReport_FetchData()
{
    m_row = CInt(m_row + 1.0);
    return m_row > m_rowTotal;
}

void GridReport::Detail_Format()
{
    constexpr int RulingTo = 1000;
    for (qsizetype at = 0; at < m_columns.size(); ++at) {
        const ReportColumn &column = m_columns[at];
        for (const int x : {column.rulingBefore, column.rulingAfter}) {
            if (x > 0)
                drawPageLine({x, m_rulingFrom, x, RulingTo});
        }
        const QString text = grid(column.grid).text(m_row, column.source);
        setText(fieldName(at), column.kind == ReportColumn::Money ? u' ' + text : text);
    }
}

QString dateInBrackets()
{
    return u"( "_s + longDate(currentDateTime().date()) + u" )"_s;
}
