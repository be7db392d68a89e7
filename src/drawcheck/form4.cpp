// SPDX-License-Identifier: MIT
#include "drawcheck/form4.h"

#include "ui_form4.h"

#include "desktop/background.h"
#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "entry/hotnumbers.h"
#include "runtime/values.h"

#include <QMouseEvent>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int TopDigitCount = 3;
constexpr QRgb TopBoxColor = 0xF5F5F5;
constexpr QRgb BottomBoxColor = 0xE0E0E0;
constexpr QRgb ProfitColor = 0xA5CD9B;

} // namespace

Form4::Form4(ProgressBar &progress, Printer printer, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::Form4>()), m_progress(progress),
      m_printer(std::move(printer)), m_focus(this)
{
    m_ui->setupUi(this);
    m_boxes = {m_ui->text4,  m_ui->text5,  m_ui->text6,  m_ui->text8,  m_ui->text9,  m_ui->text10,
               m_ui->text11, m_ui->text12, m_ui->text13, m_ui->text14, m_ui->text15, m_ui->text16,
               m_ui->Text17, m_ui->Text18, m_ui->Text19, m_ui->Text20, m_ui->Text21};
    for (int at = 0; at < DigitCount; ++at)
        setBackground(m_boxes[size_t(at)], at < TopDigitCount ? TopBoxColor : BottomBoxColor);
    setBackground(m_ui->payoutBox, HotColor);
    setBackground(m_ui->profitBox, ProfitColor);
    m_ui->fpSpread1->setSpreadModel(&m_check.winners);
    m_ui->fpSpread1->setRowPoints(19);
    setFocusProxy(m_ui->text4); // so that typing can begin at once
    connectControls();
    Form_Load();
}

Form4::~Form4() = default;

void Form4::connectControls()
{
    new FieldGuard(this, &m_focus, digitRules());
    for (QLineEdit *box : m_boxes)
        box->installEventFilter(this);
    connectHandler(&m_focus, &FocusTracker::gotFocus, this, [this](QWidget *control) {
        const auto *box = std::find(m_boxes.begin(), m_boxes.end(), control);
        if (box != m_boxes.end())
            (*box)->selectAll();
    });
    connectHandler(m_ui->Option1, &QRadioButton::toggled, this, [this](bool selected) {
        if (selected)
            Option_Click(Book::Ours);
    });
    connectHandler(m_ui->Option2, &QRadioButton::toggled, this, [this](bool selected) {
        if (selected)
            Option_Click(Book::CutOut);
    });
    connectHandler(m_ui->Command18, &QPushButton::clicked, this, &Form4::Command18_Click);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, &Form4::lvButtons_H1_Click);
    connectHandler(m_ui->lvButtons_H5, &QPushButton::clicked, this, &Form4::lvButtons_H5_Click);
}

/// Each digit moves the focus to the next box, so that all seventeen can be typed in one go. Enter
/// moves it too, except at the end of a prize.
QList<FieldRule> Form4::digitRules() const
{
    QList<FieldRule> rules;
    for (size_t at = 0; at < m_boxes.size(); ++at) {
        QLineEdit *next = at + 1 < m_boxes.size() ? m_boxes[at + 1] : nullptr;
        const bool endsPrize = std::ranges::any_of(
            PrizePlaces, [&](QByteArrayView places) { return places.back() == char('a' + at); });
        rules += {.field = m_boxes[at],
                  .longest = 1,
                  .enterFocuses = endsPrize ? nullptr : next,
                  .keyFocuses = next};
    }
    return rules;
}

void Form4::Form_Load()
{
    m_check.readDiscounts();
    m_ui->fpSpread1->setColumnDigits(WinKindColumn, 10);
    m_ui->fpSpread1->setColumnDigits(WinNumberColumn, 8);
    m_ui->fpSpread1->setColumnDigits(WinPercentColumn, 8);
    m_ui->fpSpread1->setColumnDigits(WinStakeColumn, 16);
    m_ui->fpSpread1->setColumnDigits(WinPayoutColumn, 20);
    m_ui->fpSpread1->setColumnDigits(WinTelephoneColumn, 16);
}

bool Form4::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        static_cast<QLineEdit *>(object)->selectAll();
    return false;
}

ResultDigits Form4::keyedDigits() const
{
    ResultDigits digits;
    std::transform(m_boxes.begin(), m_boxes.end(), digits.begin(),
                   [](const QLineEdit *box) { return box->text(); });
    return digits;
}

void Form4::showAmounts()
{
    m_ui->Label19->setText(m_check.Label19);
    m_ui->Label21->setText(m_check.Label21);
}

/// " &ประมวลผล": checks the selected book against the digits. All seventeen are required.
void Form4::Command18_Click()
{
    m_check.zeroAmounts();
    showAmounts();
    for (QLineEdit *box : m_boxes) {
        if (!trimBlanks(box->text()).isEmpty())
            continue;
        refuse(u"กรุณาระบุ ( เลข ) ที่ต้องการ  ก่อนประมวลผล"_s);
        box->setFocus();
        return;
    }
    const auto show = qScopeGuard([this] { showAmounts(); }); // also after an error
    m_check.LoadnumberT(keyedDigits(), m_progress);
}

/// "เลข(ของเรา)" and "เลข(ที่ถูกคัดออก)": selects the book to check. The digits stay, so that the same
/// result can be checked against the other book at once.
void Form4::Option_Click(Book book)
{
    m_check.book = book;
    m_check.SetupSpread();
    m_check.zeroAmounts();
    showAmounts();
}

/// "&ล้างเลข": clears the digits. Winners and amounts stay.
void Form4::lvButtons_H1_Click()
{
    for (QLineEdit *box : m_boxes)
        box->clear();
    m_ui->text4->setFocus();
}

/// "&ปริ้นข้อมูล": opens the report of the winners.
void Form4::lvButtons_H5_Click()
{
    if (m_check.winners.rows() == 0) {
        refuse(u"ไม่สามารถส่งออกได้ ( ไม่มีข้อมูลในตาราง ) โปรดลองใหม่อีกครั้ง . .  ."_s);
        return;
    }
    m_printer(m_check, window());
}
