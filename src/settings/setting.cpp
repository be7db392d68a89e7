// SPDX-License-Identifier: MIT
#include "settings/setting.h"

#include "ui_setting.h"

#include "desktop/dialogplace.h"
#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "fields/fieldguard.h"
#include "runtime/values.h"
#include "settings/hotnumberlist.h"
#include "shell/globals.h"

using namespace Qt::StringLiterals;

Setting::Setting(QWidget *parent, BoardShowsRows boardShowsRows)
    : QDialog(parent), m_ui(std::make_unique<Ui::Setting>()), m_focus(this),
      m_boardShowsRows(std::move(boardShowsRows))
{
    m_ui->setupUi(this);
    m_rates = {m_ui->text1, m_ui->text3, m_ui->text2, m_ui->text4,
               m_ui->text5, m_ui->text6, m_ui->text7, m_ui->text8};
    m_ui->fpSpread1->setSpreadModel(&m_hotNumbers);
    m_ui->fpSpread1->setColumnDigits(HotPlaceColumn, 8);
    m_ui->fpSpread1->setColumnDigits(HotNumberColumn, 19);
    m_ui->fpSpread1->setColumnDigits(HotTodColumn + 1, 2);
    m_ui->fpSpread1->setRowPoints(21);
    for (auto *button : findChildren<QPushButton *>())
        button->setAutoDefault(false); // Enter in a field must not click a button
    connectControls();
    Form_Load();
}

Setting::~Setting() = default;

void Setting::connectControls()
{
    QList<FieldRule> rules{{.field = m_ui->text9, .longest = 3, .enterClicks = m_ui->lvButtons_H3}};
    for (size_t at = 0; at < m_rates.size(); ++at)
        rules += {.field = m_rates[at],
                  .longest = 4,
                  .enterFocuses = at + 1 < m_rates.size() ? m_rates[at + 1] : nullptr};
    new FieldGuard(this, &m_focus, rules);
    connectHandler(m_ui->lvButtons_H0, &QPushButton::clicked, this, &Setting::lvButtons_H0_Click);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, &Setting::lvButtons_H1_Click);
    connectHandler(m_ui->lvButtons_H2, &QPushButton::clicked, this, &Setting::lvButtons_H2_Click);
    connectHandler(m_ui->lvButtons_H3, &QPushButton::clicked, this, &Setting::lvButtons_H3_Click);
    connectHandler(m_ui->lvButtons_H4, &QPushButton::clicked, this, &Setting::lvButtons_H4_Click);
    connectHandler(m_ui->lvButtons_H5, &QPushButton::clicked, this, &Setting::lvButtons_H5_Click);
}

void Setting::Form_Load()
{
    placeDialog(*this);
    LoadNumberFix();
    LoadMoney();
}

void Setting::LoadNumberFix()
{
    listHotNumbers(m_hotNumbers);
    m_ui->fpSpread1->setActiveRow(1);
}

void Setting::LoadMoney()
{
    const auto rates = readRates();
    for (size_t at = 0; rates && at < m_rates.size(); ++at)
        m_rates[at]->setText((*rates)[at]);
}

void Setting::refuseAt(QLineEdit *field, const QString &words)
{
    refuse(words);
    field->setFocus();
}

/// " ลบข้อมูลงวดนี้": closes the draw and ends the program.
void Setting::lvButtons_H0_Click()
{
    closeDraw(m_boardShowsRows);
}

/// " ลบข้อมูลทั้งหมด": wipes the Ledger and ends the program.
void Setting::lvButtons_H1_Click()
{
    wipeLedger();
}

/// "บันทึกอัตราจ่าย": saves the payout rates and puts them into effect.
void Setting::lvButtons_H2_Click()
{
    RateTexts rates;
    for (size_t at = 0; at < m_rates.size(); ++at) {
        rates[at] = trimBlanks(m_rates[at]->text());
        if (rates[at].isEmpty())
            return refuseAt(m_rates[at], u"กรุณาระบุ ( อัตราจ่าย ) ให้ครบทุกช่อง ก่อนเริ่มบันทึก"_s);
    }
    if (!ask(u"คุณแน่ใจว่าต้องการบันทึก ( อัตราจ่ายเงินรางวัล ) ?"_s, u"ยืนยันการบันทึกข้อมูล"_s,
             BoxIcon::Information, BoxAnswer::Cancel))
        return;
    writeRates(rates);
    ::LoadMoney();
    LoadMoney();
    inform(u"บันทึก รายการ เข้าสู่ระบบงานฐานข้อมูลเรียบร้อย."_s);
}

/// "เพิ่มเลข": adds a hot number.
void Setting::lvButtons_H3_Click()
{
    QLineEdit *field = m_ui->text9;
    const auto length = trimBlanks(field->text()).size();
    if (length == 0)
        return refuseAt(field, u"กรุณาระบุ ( เลข ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s);
    if (length < 2)
        return refuseAt(field,
                        u"ไม่สามารถบันทึกได้ ( เลขต้อง มีตั้งแต่ สองหลัก ขึ้นไป ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s);
    if (!ask(u"คุณแน่ใจว่าต้องการเพิ่ม \n\n[  เลขดัง ][ =  "_s + field->text() + u" ]"_s,
             u"ยืนยันการเพิ่มข้อมูล"_s, BoxIcon::Information, BoxAnswer::Cancel))
        return;
    if (isHotNumber(field->text())) {
        refuse(u"ไม่สามารถบันทึกได้ ( มีเลขนี้อยู่ใน ระบบ แล้ว !! ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s);
        return;
    }
    addHotNumber(field->text());
    field->clear();
    LoadNumberFix();
}

/// "ลบเลข": deletes the hot number in the active row.
void Setting::lvButtons_H4_Click()
{
    if (m_hotNumbers.rows() == 0)
        return;
    const int row = m_ui->fpSpread1->activeRow();
    const qint32 key = CLng(m_hotNumbers.text(row, 0));
    const QString number = m_hotNumbers.text(row, HotNumberColumn);
    if (!ask(u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[  เลขดัง ][  "_s + number + u"  ]"_s, u"ยืนยันการลบข้อมูล"_s,
             BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    deleteHotNumber(key);
    inform(u"ทำการ ลบข้อมูล ออกจากระบบเรียบร้อยแล้ว."_s);
    LoadNumberFix();
}

/// "ลบเลขดังทั้งหมด": deletes all hot numbers.
void Setting::lvButtons_H5_Click()
{
    if (m_hotNumbers.rows() == 0)
        return;
    if (!ask(u"คุณแน่ใจว่าต้องการลบข้อมูล (  เลขดัง !! ) ออกทั้งหมด แน่ใจ?"_s, u"ยืนยันการลบข้อมูล"_s,
             BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    deleteAllHotNumbers();
    refuse(u"ลบข้อมูลทั้งหมดเสร็จสิ้นแล้ว . . . . ."_s); // shows the warning icon although it succeeded
    LoadNumberFix();
}
