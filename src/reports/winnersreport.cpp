// SPDX-License-Identifier: MIT
#include "reports/winnersreport.h"

#include "drawcheck/winners.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Control = ReportControl;

constexpr auto Header = ReportSection::PageHeader;
constexpr auto Detail = ReportSection::Detail;

constexpr TextStyle Title{12, Qt::AlignLeft, true, true};
constexpr TextStyle Total{12, Qt::AlignRight, true, true};
constexpr TextStyle Heading{11, Qt::AlignHCenter, true};
constexpr TextStyle MoneyHeading{11, Qt::AlignRight, true};
constexpr TextStyle Word{11, Qt::AlignHCenter};
constexpr TextStyle Money{11, Qt::AlignRight, false, true, true};

ReportLayout layout()
{
    return {
        u"รายชื่อผู้ที่ถูก"_s,
        false,
        {
            {Header, u"Label4"_s, {0, 0, 11339, 425}, Control::Text, Title},
            {Header, u"Label10"_s, {5500, 0, 5811, 425}, Control::Text, Total},
            {Header, u"Shape3"_s, {0, 567, 11339, 425}, Control::Frame},
            {Header, u"Label3"_s, {0, 600, 1134, 350}, Control::Text, Heading, u"ประเภท"_s},
            {Header, u"Label5"_s, {1150, 600, 992, 350}, Control::Text, Heading, u"เลข"_s},
            {Header,
             u"Label6"_s,
             {2150, 600, 1830, 350},
             Control::Text,
             MoneyHeading,
             u"ถูกเป็นเงิน "_s},
            {Header,
             u"Label7"_s,
             {4000, 600, 1800, 350},
             Control::Text,
             MoneyHeading,
             u"ได้รับเงิน "_s},
            {Header, u"Label8"_s, {5820, 600, 3685, 350}, Control::Text, Heading, u"ชื่อลูกค้า"_s},
            {Header, u"Label9"_s, {9510, 600, 1800, 350}, Control::Text, Heading, u"เบอร์ติดต่อ"_s},
            {Header, u"Line1"_s, {1134, 567, 0, 425}, Control::Line},
            {Header, u"Line9"_s, {2126, 567, 0, 425}, Control::Line},
            {Header, u"Line10"_s, {3969, 567, 0, 425}, Control::Line},
            {Header, u"Line11"_s, {5811, 567, 0, 425}, Control::Line},
            {Header, u"Line12"_s, {9496, 567, 0, 425}, Control::Line},
            {Detail, u"text1"_s, {0, 20, 1134, 350}, Control::Text, Word},
            {Detail, u"text2"_s, {1134, 20, 992, 350}, Control::Text, Word},
            {Detail, u"text3"_s, {2126, 20, 1843, 350}, Control::Text, Money},
            {Detail, u"text4"_s, {4000, 20, 1843, 350}, Control::Text, Money},
            {Detail, u"text5"_s, {5820, 20, 3685, 350}, Control::Text, Word},
            {Detail, u"text6"_s, {9510, 20, 1800, 350}, Control::Text, Word},
            {Detail, u"Line8"_s, {0, 350, 11339, 0}, Control::Line},
        },
    };
}

/// The discount is not for the customer's eyes.
RowPlan plan()
{
    return {
        {
            {u"text1"_s, 0, WinKindColumn},
            {u"text2"_s, 0, WinNumberColumn},
            {u"text3"_s, 0, WinStakeColumn, true},
            {u"text4"_s, 0, WinPayoutColumn, true},
            {u"text5"_s, 0, WinNameColumn},
            {u"text6"_s, 0, WinTelephoneColumn},
        },
        {300, 1440, 2430, 4280, 6100, 9800, 11630},
        16090,
    };
}

} // namespace

ActiveReport1::ActiveReport1(WinnersOnScreen shown)
    : GridReport(layout(), plan(), {&shown.winners}), m_shown(std::move(shown))
{}

void ActiveReport1::ActiveReport_Initialize()
{
    const QString title = u"รายชื่อผู้ที่ถูกงวดที่    "_s + dateInBrackets();
    setVisible(u"Label10"_s, !m_shown.ofCutBook);
    if (m_shown.ofCutBook) {
        setText(u"Label4"_s, u"( เลขที่ถูกคัดออก ) "_s + title);
    } else {
        setText(u"Label4"_s, title);
        setText(u"Label10"_s, u"รวมเสีย    "_s + m_shown.payout + u"  บาท"_s);
    }
    takeRowTotal();
}
