// SPDX-License-Identifier: MIT
#include "entry/form1.h"

#include "ui_form1.h"

#include "desktop/background.h"
#include "desktop/handler.h"
#include "desktop/keycodes.h"
#include "desktop/msgbox.h"
#include "entry/builders.h"
#include "entry/keyedline.h"
#include "entry/namecombo.h"
#include "entry/save.h"
#include "entry/showkey.h"
#include "entry/sidetabs.h"
#include "entry/voice.h"
#include "fields/fieldguard.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb KeyingColor = 0xDBE2E0;
constexpr QRgb AwayColor = 0xFFC0C0;

QString noCustomer()
{
    return u"ยังไม่เลือกลูกค้า"_s;
}

} // namespace

Form1::Form1(ProgressBar &progress, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::Form1>()), m_progress(progress), m_focus(this)
{
    m_ui->setupUi(this);
    m_spreads = {m_ui->fpSpread1, m_ui->fpSpread2, m_ui->fpSpread3, m_ui->fpSpread4,
                 m_ui->fpSpread5, m_ui->fpSpread6, m_ui->fpSpread7, m_ui->fpSpread8};
    for (int at = 0; at < ClassCount; ++at) {
        m_spreads[at]->setSpreadModel(&m_ticket.grids[at]);
        m_spreads[at]->setAccessibleName(BetClasses[at].caption.toString());
    }
    m_ui->SSTab1->addTab(QString());
    m_ui->SSTab1->addTab(QString());
    for (const KindEntry &kind : KindEntries)
        m_ui->Combo2->addItem(kind.entry.toString());
    setBackground(m_ui->Combo1, KeyingColor);
    setFocusProxy(m_ui->Tnumber);
    connectControls();
    Form_Load();
}

Form1::~Form1() = default;

void Form1::connectControls()
{
    const auto *guard = new FieldGuard(
        this, &m_focus, {{.field = m_ui->Tnumber, .longest = 50, .filter = FieldFilter::Line}});
    m_ui->Tnumber->installEventFilter(this); // installed after the guard, so called before it
    connectHandler(guard, &FieldGuard::entered, this, &Form1::Tnumber_KeyPress);
    connectHandler(&m_focus, &FocusTracker::gotFocus, this, &Form1::controlGotFocus);
    connectHandler(&m_focus, &FocusTracker::lostFocus, this, &Form1::controlLostFocus);
    connectHandler(m_ui->Combo1, &Combo::clicked, this, &Form1::Combo1_Click);
    m_ui->Combo1->keyPress = [this](int code) { return Combo1_KeyPress(code); };
    connectHandler(m_ui->Combo2, &Combo::clicked, this, &Form1::Combo2_Click);
    connectHandler(m_ui->C01, &QCheckBox::clicked, this, &Form1::C01_Click);
    connectHandler(m_ui->Label12, &QPushButton::clicked, this, &Form1::Label12_Click);
    connectHandler(m_ui->SSTab1, &TabStrip::clicked, this, &Form1::SSTab1_Click);
    connectHandler(m_ui->lvButtons_H0, &QPushButton::clicked, this, &Form1::lvButtons_H0_Click);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, &Form1::lvButtons_H1_Click);
    connectHandler(m_ui->lvButtons_H2, &QPushButton::clicked, this, &Form1::lvButtons_H2_Click);
}

void Form1::Form_Load()
{
    GridTouched = 0;
    m_ui->Combo2->setListIndex(0);
    m_ui->Combo1->setList(FillCombo(u"tblMember"_s, u"MPK"_s, u"Mname"_s));
    showZeroTabs();
}

void Form1::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())     // not when a minimised window is restored
        m_ui->Tnumber->setFocus(); // so that the user can type at once
}

bool Form1::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto &key = *static_cast<QKeyEvent *>(event);
    const int code = keyCode(key);
    const bool chosen = !TnumberAway && findKey(KindKeys, code);
    Form_KeyDown(code);
    return chosen && !key.modifiers().testFlag(Qt::AltModifier); // Alt+F4 closes the window
}

/// Any key in the entry field, auto-repeat included: speaks it and, if it is a kind key, chooses
/// the kind. That clears the field, since its text belonged to the previous kind.
void Form1::Form_KeyDown(int code)
{
    if (TnumberAway)
        return;
    const bool voiceOn = m_ui->C01->isChecked();
    if (const EchoKey *echo = findKey(EchoKeys, code); echo && voiceOn)
        ReadKey(mmcAudio, echo->file);
    const KindKey *kind = findKey(KindKeys, code);
    if (!kind)
        return;
    if (voiceOn)
        ReadKey(mmcAudio, kind->file);
    m_ui->Tnumber->clear();
    m_ui->Tnumber->setFocus();
    const int index = indexOfKind(kind->kind);
    m_ui->Label3->setText(KindEntries[size_t(index)].caption.toString());
    m_ui->Combo2->setListIndex(index);
}

/// " เปิด / ปิด เสียงพูด": turns the voice on or off. Turning it off also stops the current word.
void Form1::C01_Click()
{
    if (!m_ui->C01->isChecked())
        mmcAudio.Command(MediaCommand::Close);
}

/// "&คีย์ลัด": shows the picture of the shortcut keys.
void Form1::Label12_Click()
{
    ShowKey::open(window());
}

void Form1::controlGotFocus(QWidget *control)
{
    if (control == m_ui->Tnumber)
        Tnumber_GotFocus();
    for (quint8 at = 0; at < ClassCount; ++at) {
        if (control == m_spreads[at])
            GridTouched = at + 1;
    }
}

void Form1::controlLostFocus(QWidget *control)
{
    if (control == m_ui->Tnumber)
        Tnumber_LostFocus();
}

void Form1::Tnumber_GotFocus()
{
    TnumberAway = false;
    setBackground(m_ui->Tnumber, KeyingColor);
    m_ui->Tnumber->clear();
}

void Form1::Tnumber_LostFocus()
{
    TnumberAway = true;
    setBackground(m_ui->Tnumber, AwayColor);
    m_ui->Tnumber->setText(u"คลิกเพื่อใส่เลขใหม่"_s);
}

/// Enter in the entry field: adds the line to the ticket.
void Form1::Tnumber_KeyPress()
{
    const BetKind kind = kindOfCaption(m_ui->Label3->text());
    switch (splitLine(m_ticket, m_ui->Tnumber->text(), kind)) {
    case LineForm::Refused:
        return;
    case LineForm::NoKindChosen:
        m_ui->Combo2->setFocus();
        return;
    case LineForm::Good:
        break;
    }
    resumeNext([&] { runBuilder(m_ticket, kind); });
    resumeNext([this] { Nubyod(); });
    m_ui->Tnumber->clear();
    if (m_ui->Tname->text() == noCustomer())
        m_ui->Combo1->setListIndex(-1);
    else
        resumeNext([this] { showDiscount(m_ui->text1->text()); });
    m_ui->SSTab1->setTab(m_ticket.ShowTopTab ? TopTab : BottomTab);
}

/// List of kinds: chooses the kind of the next lines and returns to the entry field.
void Form1::Combo2_Click()
{
    const KindEntry &entry = KindEntries[size_t(m_ui->Combo2->listIndex())];
    m_ui->Label3->setText(entry.caption.toString());
    if (entry.kind != BetKind::NoKind)
        m_ui->Tnumber->setFocus();
}

int Form1::Combo1_KeyPress(int code)
{
    return nameKeyPress(*m_ui->Combo1, code, [this] { m_ui->Tnumber->setFocus(); });
}

/// List of customers: chooses the customer of the ticket. Ignored while the ticket is empty, since
/// the numbers are entered before the customer.
void Form1::Combo1_Click()
{
    if (m_ticket.isEmpty())
        return;
    const auto customer = ticketCustomer(m_ui->Combo1->currentText());
    if (!customer)
        return;
    m_ui->Tname->setText(customer->name);
    m_ui->text2->setText(customer->percent);
    resumeNext([this] { showDiscount(m_ui->text1->text()); });
}

/// " &บันทึก": files the ticket in the Ledger.
void Form1::lvButtons_H0_Click()
{
    if (!confirmSave())
        return;
    saveLines(m_ticket, m_ui->Combo1->currentText(), m_progress);
    m_ticket.SetupSpread();
    saveDiscount(m_ui->text3->text());
    m_progress.finish();
    resetAfterSave();
}

bool Form1::confirmSave()
{
    if (m_ui->Combo1->listIndex() == -1) {
        refuse(u"ไม่สามารถบันทึกได้ ( ชื่อลูกค้าไม่ถูกต้อง หรือ ไม่มีในระบบ )  โปรดลองใหม่อีกครั้ง . . ."_s);
        return false;
    }
    if (m_ticket.isEmpty()) {
        refuse(
            u"ไม่สามารถบันทึกได้ ( โปรดเพิ่มข้อมูล เลข ก่อนการบันทึก ) โปรดทำการแก้ไข และ ลองใหม่อีกครั้ง . . ."_s);
        return false;
    }
    // The title asks to confirm a deletion, although this is a save: users are used to it.
    return ask(u"คุณแน่ใจว่าต้องการเพิ่มข้อมูล ตัวเลข เหล่านี้ ลงฐานข้อมูล ? . . ."_s, u"ยืนยันการลบข้อมูล"_s,
               BoxIcon::Exclamation, BoxAnswer::Ok);
}

void Form1::resetAfterSave()
{
    m_ui->Combo1->setListIndex(-1);
    m_ui->Tname->setText(noCustomer());
    m_ui->text1->setText(u"0"_s);
    m_ui->text2->clear();
    m_ui->text3->clear();
    showZeroTabs();
}

/// " &ลบเลข": deletes a line of the ticket, the active row of the grid that had the focus last.
void Form1::lvButtons_H1_Click()
{
    if (GridTouched == 0)
        return;
    const int touched = GridTouched - 1;
    const int row = m_spreads[touched]->activeRow();
    if (row == 0)
        return;
    const QString number = m_ticket.grids[touched].text(row, NumberColumn);
    if (!ask(u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลข "_s + number + u" ) ในหน้านี้ ?"_s, u"ยืนยันการลบข้อมูล"_s,
             BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    m_ticket.grids[touched].removeRow(row);
    resumeNext([this] { Nubyod(); });
    m_ui->SSTab1->setTab(touched < TopClassCount ? TopTab : BottomTab);
    if (m_ui->Tname->text() != noCustomer()) {
        const QString total = m_ui->text1->text(); // empty once the last line is gone
        resumeNext([&] { showDiscount(total.isEmpty() ? u"0"_s : total); });
    }
    m_ui->Tnumber->setFocus();
}

/// " &ลบเลขทั้งหมด": empties the grids. The customer, the total and the discount stay.
void Form1::lvButtons_H2_Click()
{
    if (m_ticket.isEmpty())
        return;
    if (!ask(u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลขทั้งหมด ) ในหน้านี้ ?"_s, u"ยืนยันการลบข้อมูล"_s,
             BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    m_ticket.SetupSpread();
    // Unlike in showZeroTabs(), the first caption has two spaces before ")".
    showTabs(u"   ล่าง ( ยอดรวม 0  )"_s, u"   บน ( ยอดรวม 0 )"_s);
}

/// Tabs of the two sides: shows the grids of the selected one.
void Form1::SSTab1_Click()
{
    showSide(*m_ui->SSTab1, m_spreads);
}

/// Updates the totals of the grids, the tabs and the ticket. Selects the top tab.
void Form1::Nubyod()
{
    const GridTotals totals = m_ticket.totalGrids();
    showTabs(u"   ล่าง ( ยอดรวม "_s + formatBaht(bottomTotal(totals)) + u" )"_s,
             u"   บน ( ยอดรวม "_s + formatBaht(topTotal(totals)) + u" )"_s);
    m_ui->text1->setText(formatBaht(sumTotal(totals)));
}

/// Sets both tab captions and selects the top tab.
void Form1::showTabs(const QString &bottom, const QString &top)
{
    m_ui->SSTab1->setTabText(BottomTab, bottom);
    m_ui->SSTab1->setTabText(TopTab, top);
    m_ui->SSTab1->setTab(TopTab);
}

void Form1::showZeroTabs()
{
    showTabs(u"   ล่าง ( ยอดรวม 0 )"_s, u"   บน ( ยอดรวม 0 )"_s);
}

void Form1::showDiscount(const QString &total)
{
    m_ui->text3->setText(discountMoney(total, m_ui->text2->text()));
}
