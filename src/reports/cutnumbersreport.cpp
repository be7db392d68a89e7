// SPDX-License-Identifier: MIT
#include "reports/cutnumbersreport.h"

#include "cutting/cutboard.h"
#include "entry/betgrid.h"

using namespace Qt::StringLiterals;

namespace {

using Control = ReportControl;

constexpr auto Header = ReportSection::PageHeader;
constexpr auto Detail = ReportSection::Detail;

constexpr TextStyle Title{.points = 13, .bold = true, .whole = true};
constexpr TextStyle Total{.points = 13, .bold = true, .whole = true, .onWhite = true};

constexpr ColumnLook Look{.headingTop = 1134,
                          .headingHeight = 425,
                          .headingPoints = 12,
                          .fieldHeight = 425,
                          .fieldPoints = 12};

constexpr auto Word = ReportColumn::Word;
constexpr auto Money = ReportColumn::Money;

constexpr std::array Columns{
    ReportColumn{u"ประเภท", Word, 3, 0, CutTypeColumn, {0, 1701}, 300},
    ReportColumn{u"เลข", Word, 5, 0, CutNumberColumn, {1701, 1984}, 2000},
    ReportColumn{u"ยอดซื้อ ", Money, 6, 0, CutAmountColumn, {3685, 1701}, 4000, 5670},
    ReportColumn{u"ประเภท", Word, 7, 1, CutTypeColumn, {5811, 1701}, 6100},
    ReportColumn{u"เลข", Word, 8, 1, CutNumberColumn, {7512, 1984}, 7800},
    ReportColumn{u"ยอดซื้อ ", Money, 9, 1, CutAmountColumn, {9496, 1701}, 9800, 11480},
};

ReportLayout layout()
{
    ReportLayout layout{
        .title = u"เลขที่ถูกคัดออก"_s,
        .controls = {
            {Header, u"Label4"_s, {0, 0, 11339, 425}, Control::Text, Title},
            {Header, u"Label10"_s, {0, 567, 5386, 567}, Control::Text, Total, u"บน (รวม)"_s},
            {Header, u"Label11"_s, {5811, 567, 5386, 567}, Control::Text, Total, u"ล่าง (รวม)"_s},
        }};
    for (size_t at = 0; at < Columns.size(); ++at)
        layout.controls += columnControls(Columns[at], qsizetype(at), Look);
    layout.controls += {Detail, u"Line8"_s, {0, 440, 11180, 0}, Control::Line};
    return layout;
}

QString totalOf(const SpreadModel &grid)
{
    return grid.text(TotalRow, CutTotalColumn);
}

} // namespace

ActiveReport3::ActiveReport3(const SpreadModel &top, const SpreadModel &bottom)
    : GridReport(layout(), {Columns.begin(), Columns.end()}, 16090, {&top, &bottom})
{}

void ActiveReport3::ActiveReport_Initialize()
{
    takeRowTotal();
    setText(u"Label4"_s, u"งวดที่    "_s + dateInBrackets());
    setText(u"Label10"_s, u"บน ( ยอดรวม "_s + totalOf(grid(0)) + u" บาท )"_s);
    setText(u"Label11"_s, u"ล่าง ( ยอดรวม "_s + totalOf(grid(1)) + u" บาท )"_s);
}
