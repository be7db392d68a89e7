// SPDX-License-Identifier: MIT
#include "reports/winnersreport.h"

#include "drawcheck/winners.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Control = ReportControl;

constexpr auto Header = ReportSection::PageHeader;
constexpr auto Detail = ReportSection::Detail;

constexpr TextStyle Title{.points = 12, .bold = true, .whole = true};
constexpr TextStyle Total{.points = 12, .alignment = Qt::AlignRight, .bold = true, .whole = true};

constexpr ColumnLook Look{.headingTop = 600,
                          .headingHeight = 350,
                          .headingPoints = 11,
                          .fieldHeight = 350,
                          .fieldPoints = 11};

constexpr auto Word = ReportColumn::Word;
constexpr auto Money = ReportColumn::Money;

/// Customers see this report, so it has no column for their discounts.
constexpr std::array Columns{
    ReportColumn{u"ประเภท", Word, 3, 0, WinKindColumn, {0, 1134}, 300},
    ReportColumn{u"เลข", Word, 5, 0, WinNumberColumn, {1134, 992}, 1440, 0, {1150, 992}},
    ReportColumn{u"ถูกเป็นเงิน ", Money, 6, 0, WinStakeColumn, {2126, 1843}, 2430, 0, {2150, 1830}},
    ReportColumn{u"ได้รับเงิน ", Money, 7, 0, WinPayoutColumn, {4000, 1843}, 4280, 0, {4000, 1800}},
    ReportColumn{u"ชื่อลูกค้า", Word, 8, 0, WinNameColumn, {5820, 3685}, 6100},
    ReportColumn{u"เบอร์ติดต่อ", Word, 9, 0, WinTelephoneColumn, {9510, 1800}, 9800, 11630},
};

ReportLayout layout()
{
    ReportLayout layout{.title = u"รายชื่อผู้ที่ถูก"_s,
                        .controls = {
                            {Header, u"Label4"_s, {0, 0, 11339, 425}, Control::Text, Title},
                            {Header, u"Label10"_s, {5500, 0, 5811, 425}, Control::Text, Total},
                            {Header, u"Shape3"_s, {0, 567, 11339, 425}, Control::Frame},
                        }};
    for (size_t at = 0; at < Columns.size(); ++at)
        layout.controls += columnControls(Columns[at], qsizetype(at), Look);
    layout.controls += {
        {Header, u"Line1"_s, {1134, 567, 0, 425}, Control::Line},
        {Header, u"Line9"_s, {2126, 567, 0, 425}, Control::Line},
        {Header, u"Line10"_s, {3969, 567, 0, 425}, Control::Line},
        {Header, u"Line11"_s, {5811, 567, 0, 425}, Control::Line},
        {Header, u"Line12"_s, {9496, 567, 0, 425}, Control::Line},
        {Detail, u"Line8"_s, {0, 350, 11339, 0}, Control::Line},
    };
    return layout;
}

} // namespace

ActiveReport1::ActiveReport1(WinnersOnScreen shown)
    : GridReport(layout(), {Columns.begin(), Columns.end()}, 16090, {&shown.winners}),
      m_shown(std::move(shown))
{}

void ActiveReport1::ActiveReport_Initialize()
{
    const QString title = u"รายชื่อผู้ที่ถูกงวดที่    "_s + dateInBrackets();
    if (m_shown.ofCutBook) {
        setText(u"Label4"_s, u"( เลขที่ถูกคัดออก ) "_s + title);
    } else {
        setText(u"Label4"_s, title);
        setText(u"Label10"_s, u"รวมเสีย    "_s + m_shown.payout + u"  บาท"_s);
    }
    takeRowTotal();
}
