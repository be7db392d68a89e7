// SPDX-License-Identifier: MIT
#include "reports/cutnumbersreport.h"

#include "cutting/cutboard.h"
#include "entry/betgrid.h"

using namespace Qt::StringLiterals;

namespace {

using Control = ReportControl;

constexpr auto Header = ReportSection::PageHeader;
constexpr auto Detail = ReportSection::Detail;

constexpr TextStyle Title{13, Qt::AlignLeft, true, true};
constexpr TextStyle Total{13, Qt::AlignLeft, true, true, false, true};
constexpr TextStyle Heading{12, Qt::AlignHCenter, true};
constexpr TextStyle MoneyHeading{12, Qt::AlignRight, true};
constexpr TextStyle Word{12, Qt::AlignHCenter};
constexpr TextStyle Money{12, Qt::AlignRight, false, true, true};

ReportLayout layout()
{
    return {
        u"เลขที่ถูกคัดออก"_s,
        false,
        {
            {Header, u"Label4"_s, {0, 0, 11339, 425}, Control::Text, Title},
            {Header, u"Label10"_s, {0, 567, 5386, 567}, Control::Text, Total, u"บน (รวม)"_s},
            {Header, u"Label11"_s, {5811, 567, 5386, 567}, Control::Text, Total, u"ล่าง (รวม)"_s},
            {Header, u"Label3"_s, {0, 1134, 1701, 425}, Control::Text, Heading, u"ประเภท"_s},
            {Header, u"Label5"_s, {1701, 1134, 1984, 425}, Control::Text, Heading, u"เลข"_s},
            {Header,
             u"Label6"_s,
             {3685, 1134, 1701, 425},
             Control::Text,
             MoneyHeading,
             u"ยอดซื้อ "_s},
            {Header, u"Label7"_s, {5811, 1134, 1701, 425}, Control::Text, Heading, u"ประเภท"_s},
            {Header, u"Label8"_s, {7512, 1134, 1984, 425}, Control::Text, Heading, u"เลข"_s},
            {Header,
             u"Label9"_s,
             {9496, 1134, 1701, 425},
             Control::Text,
             MoneyHeading,
             u"ยอดซื้อ "_s},
            {Detail, u"text1"_s, {0, 20, 1701, 425}, Control::Text, Word},
            {Detail, u"text2"_s, {1701, 20, 1984, 425}, Control::Text, Word},
            {Detail, u"text3"_s, {3685, 20, 1701, 425}, Control::Text, Money},
            {Detail, u"text4"_s, {5811, 20, 1701, 425}, Control::Text, Word},
            {Detail, u"text5"_s, {7512, 20, 1984, 425}, Control::Text, Word},
            {Detail, u"text6"_s, {9496, 20, 1701, 425}, Control::Text, Money},
            {Detail, u"Line8"_s, {0, 440, 11180, 0}, Control::Line},
        },
    };
}

RowPlan plan()
{
    return {
        {
            {u"text1"_s, 0, CutTypeColumn},
            {u"text2"_s, 0, CutNumberColumn},
            {u"text3"_s, 0, CutAmountColumn, true},
            {u"text4"_s, 1, CutTypeColumn},
            {u"text5"_s, 1, CutNumberColumn},
            {u"text6"_s, 1, CutAmountColumn, true},
        },
        {300, 2000, 4000, 5670, 6100, 7800, 9800, 11480},
        16090,
    };
}

QString totalOf(const SpreadModel &grid)
{
    return grid.text(TotalRow, CutTotalColumn);
}

} // namespace

ActiveReport3::ActiveReport3(const SpreadModel &top, const SpreadModel &bottom)
    : GridReport(layout(), plan(), {&top, &bottom})
{}

void ActiveReport3::ActiveReport_Initialize()
{
    takeRowTotal();
    setText(u"Label4"_s, u"งวดที่    "_s + dateInBrackets());
    setText(u"Label10"_s, u"บน ( ยอดรวม "_s + totalOf(grid(0)) + u" บาท )"_s);
    setText(u"Label11"_s, u"ล่าง ( ยอดรวม "_s + totalOf(grid(1)) + u" บาท )"_s);
}
