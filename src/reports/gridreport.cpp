// SPDX-License-Identifier: MIT
#include "reports/gridreport.h"

#include "desktop/clock.h"
#include "desktop/region.h"
#include "runtime/values.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

GridReport::GridReport(ReportLayout layout, RowPlan plan, QList<const SpreadModel *> grids)
    : Report(std::move(layout)), m_plan(std::move(plan)), m_grids(std::move(grids))
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
    for (const int x : std::as_const(m_plan.rulingAt))
        drawPageLine({x, m_plan.rulingFrom, x, m_plan.rulingTo});
    for (const FieldSource &source : std::as_const(m_plan.fields)) {
        const QString text = grid(source.grid).text(m_row, source.column);
        setText(source.field, source.blankAhead ? u' ' + text : text);
    }
}

QString dateInBrackets()
{
    return u"( "_s + longDate(currentDateTime().date()) + u" )"_s;
}
