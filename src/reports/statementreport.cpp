// SPDX-License-Identifier: MIT
#include "reports/statementreport.h"

#include "entry/betgrid.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Control = ReportControl;

constexpr auto Header = ReportSection::PageHeader;
constexpr auto Detail = ReportSection::Detail;
constexpr auto Footer = ReportSection::PageFooter;

constexpr TextStyle Title{12, Qt::AlignLeft, true, true};
constexpr TextStyle Total{12, Qt::AlignRight, true, true};
constexpr TextStyle BlockTitle{9, Qt::AlignHCenter, true};
constexpr TextStyle BlockCaption{8, Qt::AlignRight};
constexpr TextStyle BlockTotal{9, Qt::AlignRight, true, true, true, true};
constexpr TextStyle Heading{9, Qt::AlignHCenter};
constexpr TextStyle MoneyHeading{9, Qt::AlignRight};
constexpr TextStyle Number{10, Qt::AlignHCenter};
constexpr TextStyle Money{10, Qt::AlignRight, false, true, true};
constexpr TextStyle Owner{9, Qt::AlignRight, false, true};

constexpr int NumberWidth = 709;
constexpr int MoneyWidth = 1134;

/// One board on paper. Its labels are numbered on from its title: caption, total, and the
/// headings of its two columns; its two fields are numbered by its place.
struct Block
{
    const char16_t *title;
    int left;
    int firstLabel;
};

/// On paper the side stands at the top of the page, so the titles of the bottom boards do without.
constexpr std::array Blocks{
    Block{u"3 ตัวตรง", 0, 5},      Block{u"3 ตัวโต๊ด", 1984, 10}, Block{u"2 ตัวตรง", 3969, 15},
    Block{u"2 ตัวโต๊ด", 5953, 20},  Block{u"วิ่งบน", 7937, 25},    Block{u"3 ตัวตรง", 10205, 30},
    Block{u"2 ตัวตรง", 12189, 35}, Block{u"วิ่งล่าง", 14173, 40},
};
constexpr int FirstBottomBlock = 5;

QString label(int number)
{
    return u"Label"_s + QString::number(number);
}

QString field(int number)
{
    return u"text"_s + QString::number(number);
}

QList<ReportControl> blockControls(int at)
{
    const Block &block = Blocks[size_t(at)];
    const int left = block.left;
    const int amounts = left + NumberWidth;
    const int width = NumberWidth + MoneyWidth;
    const int first = block.firstLabel;
    return {
        {Header,
         label(first),
         {left, 425, width, 284},
         Control::Text,
         BlockTitle,
         QString::fromUtf16(block.title)},
        {Header,
         label(first + 1),
         {left, 709, width, 283},
         Control::Text,
         BlockCaption,
         u"รวมยอด (บาท)"_s},
        {Header, label(first + 2), {left, 992, width, 284}, Control::Text, BlockTotal, u"รวมยอด"_s},
        {Header,
         label(first + 3),
         {left, 1276, NumberWidth, 283},
         Control::Text,
         Heading,
         u"เลข"_s},
        {Header,
         label(first + 4),
         {amounts, 1276, MoneyWidth, 283},
         Control::Text,
         MoneyHeading,
         u"ยอด "_s},
        {Detail, field(2 * at + 1), {left, 20, NumberWidth, 350}, Control::Text, Number},
        {Detail, field(2 * at + 2), {amounts, 20, MoneyWidth, 350}, Control::Text, Money},
    };
}

ReportLayout layout()
{
    ReportLayout layout{
        u"ยอดซื้อแต่ละเลข"_s,
        true,
        {
            {Header, u"Label43"_s, {0, 0, 5811, 425}, Control::Text, Title},
            {Header, u"Label44"_s, {3969, 0, 5811, 425}, Control::Text, Total},
            {Header, u"Label45"_s, {10205, 0, 5811, 425}, Control::Text, Total},
            {Header, u"Label46"_s, {10205, 0, 1559, 425}, Control::Text, Title, u"[ล่าง]"_s},
            {Detail, u"Line1"_s, {0, 380, 16016, 0}, Control::Line},
            {Footer, u"Label47"_s, {3260, 50, 12756, 283}, Control::Text, Owner, {}, false},
        },
    };
    for (int at = 0; at < int(Blocks.size()); ++at)
        layout.controls += blockControls(at);
    return layout;
}

RowPlan plan()
{
    RowPlan plan;
    for (int at = 0; at < int(Blocks.size()); ++at) {
        plan.fields += {field(2 * at + 1), at, NumberColumn};
        plan.fields += {field(2 * at + 2), at, AmountColumn, true};
    }
    plan.rulingAt = {300,   1000,  2130,  2280,  3000,  4110,  4280,  5000,
                     6090,  6260,  6980,  8090,  8230,  8950,  10070, 10500,
                     11220, 12330, 12500, 13220, 14310, 14480, 15180, 16310};
    plan.rulingFrom = 11000;
    return plan;
}

} // namespace

ActiveReport2::ActiveReport2(BoardsOnScreen shown)
    : GridReport(layout(), plan(), shown.boards), m_shown(std::move(shown))
{}

void ActiveReport2::ActiveReport_Initialize()
{
    constexpr int BottomTab = 0;
    constexpr int TopTab = 1;
    takeRowTotal();
    if (!m_shown.customer.isEmpty()) {
        setVisible(u"Label47"_s, true);
        setText(u"Label47"_s, u"ข้อมูลนี้เป็นของลูกค้าชื่อ :  "_s + m_shown.customer
                                  + u"  /  ยอดส่วนลดรวม = "_s + m_shown.discount + u"  บาท"_s);
    }
    setText(u"Label43"_s, u"[บน]  งวดที่    "_s + dateInBrackets());
    showTotals(0, FirstBottomBlock - 1);
    setText(u"Label44"_s, u"เลข"_s + m_shown.selectTab(TopTab));
    showTotals(FirstBottomBlock, int(Blocks.size()) - 1);
    setText(u"Label45"_s, u"เลข"_s + m_shown.selectTab(BottomTab));
}

/// Copies the totals of boards, which stand in their second header row.
void ActiveReport2::showTotals(int firstBlock, int lastBlock)
{
    for (int at = firstBlock; at <= lastBlock; ++at)
        setText(label(Blocks[size_t(at)].firstLabel + 2), grid(at).text(FirstHeaderRow + 1, 2));
}
