// SPDX-License-Identifier: MIT
#include "reports/statementreport.h"

#include "entry/betgrid.h"
#include "entry/sidetabs.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Control = ReportControl;

constexpr auto Header = ReportSection::PageHeader;
constexpr auto Detail = ReportSection::Detail;
constexpr auto Footer = ReportSection::PageFooter;

constexpr TextStyle Title{.points = 12, .bold = true, .whole = true};
constexpr TextStyle Total{.points = 12, .alignment = Qt::AlignRight, .bold = true, .whole = true};
constexpr TextStyle BlockTitle{.points = 9, .alignment = Qt::AlignHCenter, .bold = true};
constexpr TextStyle BlockCaption{.points = 8, .alignment = Qt::AlignRight};
constexpr TextStyle BlockTotal{.points = 9,
                               .alignment = Qt::AlignRight,
                               .bold = true,
                               .whole = true,
                               .amount = true,
                               .onWhite = true};
constexpr TextStyle Owner{.points = 9, .alignment = Qt::AlignRight, .whole = true};

constexpr ColumnLook Look{.headingTop = 1276,
                          .headingHeight = 283,
                          .headingPoints = 9,
                          .boldHeadings = false,
                          .fieldHeight = 350,
                          .fieldPoints = 10};

constexpr int NumberWidth = 709;
constexpr int MoneyWidth = 1134;

/// A board on the page. Its labels have consecutive numbers: title, caption, total, and the
/// headings of its two columns.
struct Block
{
    QStringView title;
    int left = 0;
    int firstLabel = 0;
    std::array<int, 3> rulingAt{}; ///< x of the lines before, between and after its columns
};

/// The page header shows the side, so bottom boards of 2 and 3 digits have the same titles as top
/// boards.
constexpr std::array Blocks{
    Block{u"3 ตัวตรง", 0, 5, {300, 1000, 2130}},
    Block{u"3 ตัวโต๊ด", 1984, 10, {2280, 3000, 4110}},
    Block{u"2 ตัวตรง", 3969, 15, {4280, 5000, 6090}},
    Block{u"2 ตัวโต๊ด", 5953, 20, {6260, 6980, 8090}},
    Block{u"วิ่งบน", 7937, 25, {8230, 8950, 10070}},
    Block{u"3 ตัวตรง", 10205, 30, {10500, 11220, 12330}},
    Block{u"2 ตัวตรง", 12189, 35, {12500, 13220, 14310}},
    Block{u"วิ่งล่าง", 14173, 40, {14480, 15180, 16310}},
};

QString label(int number)
{
    return u"Label"_s + QString::number(number);
}

QList<ReportColumn> columns()
{
    QList<ReportColumn> columns;
    for (int at = 0; at < ClassCount; ++at) {
        const auto &[title, left, first, ruling] = Blocks[size_t(at)];
        const Extent numbers{left, NumberWidth};
        const Extent amounts{left + NumberWidth, MoneyWidth};
        columns += {{u"เลข", ReportColumn::Word, first + 3, at, NumberColumn, numbers, ruling[0]},
                    {u"ยอด ", ReportColumn::Money, first + 4, at, AmountColumn, amounts, ruling[1],
                     ruling[2]}};
    }
    return columns;
}

QList<ReportControl> blockControls(const Block &block)
{
    const int left = block.left;
    const int width = NumberWidth + MoneyWidth;
    const int first = block.firstLabel;
    return {
        {Header,
         label(first),
         {left, 425, width, 284},
         Control::Text,
         BlockTitle,
         block.title.toString()},
        {Header,
         label(first + 1),
         {left, 709, width, 283},
         Control::Text,
         BlockCaption,
         u"รวมยอด (บาท)"_s},
        {Header, label(first + 2), {left, 992, width, 284}, Control::Text, BlockTotal, u"รวมยอด"_s},
    };
}

ReportLayout layout()
{
    ReportLayout layout{
        .title = u"ยอดซื้อแต่ละเลข"_s,
        .landscape = true,
        .controls = {
            {Header, u"Label43"_s, {0, 0, 5811, 425}, Control::Text, Title},
            {Header, u"Label44"_s, {3969, 0, 5811, 425}, Control::Text, Total},
            {Header, u"Label45"_s, {10205, 0, 5811, 425}, Control::Text, Total},
            {Header, u"Label46"_s, {10205, 0, 1559, 425}, Control::Text, Title, u"[ล่าง]"_s},
            {Detail, u"Line1"_s, {0, 380, 16016, 0}, Control::Line},
            {Footer, u"Label47"_s, {3260, 50, 12756, 283}, Control::Text, Owner},
        }};
    const QList<ReportColumn> all = columns();
    for (qsizetype at = 0; at < all.size(); ++at) {
        if (at % 2 == 0)
            layout.controls += blockControls(Blocks[size_t(at / 2)]);
        layout.controls += columnControls(all[at], at, Look);
    }
    return layout;
}

} // namespace

ActiveReport2::ActiveReport2(BoardsOnScreen shown)
    : GridReport(layout(), columns(), 11000, shown.boards), m_shown(std::move(shown))
{}

void ActiveReport2::ActiveReport_Initialize()
{
    takeRowTotal();
    if (!m_shown.customer.isEmpty()) {
        setText(u"Label47"_s, u"ข้อมูลนี้เป็นของลูกค้าชื่อ :  "_s + m_shown.customer
                                  + u"  /  ยอดส่วนลดรวม = "_s + m_shown.discount + u"  บาท"_s);
    }
    setText(u"Label43"_s, u"[บน]  งวดที่    "_s + dateInBrackets());
    showTotals(0, TopClassCount);
    setText(u"Label44"_s, u"เลข"_s + m_shown.selectTab(TopTab));
    showTotals(TopClassCount, ClassCount);
    setText(u"Label45"_s, u"เลข"_s + m_shown.selectTab(BottomTab));
}

/// Copies the totals of the boards from index @p begin up to, but not including, @p end.
void ActiveReport2::showTotals(int begin, int end)
{
    for (int at = begin; at < end; ++at)
        setText(label(Blocks[size_t(at)].firstLabel + 2), grid(at).text(TotalRow, AmountColumn));
}
