// SPDX-License-Identifier: MIT
#include "cutting/cutnum.h"

#include "ui_cutnum.h"

#include "desktop/dialogplace.h"
#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "fields/fieldguard.h"
#include "runtime/values.h"

#include <utility>

using namespace Qt::StringLiterals;

CutNum::CutNum(std::function<void()> unload, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CutNum>()), m_unload(std::move(unload)),
      m_focus(this)
{
    m_ui->setupUi(this);
    m_ui->fpSpread1->setSpreadModel(&m_cutOut.grid);
    m_ui->fpSpread1->hideColumns({CutColumn::Buyer, CutColumn::User});
    m_ui->fpSpread1->setRowPoints(19);
    m_ui->fpSpread1->setColumnDigits(CutColumn::Place, 7);
    m_ui->fpSpread1->setColumnDigits(CutColumn::Label, 9);
    m_ui->fpSpread1->setColumnDigits(CutColumn::Number, 16);
    m_ui->fpSpread1->setColumnDigits(CutColumn::Amount, 17);
    new FieldGuard(this, &m_focus,
                   {{.field = m_ui->text1, .longest = 5, .enterClicks = m_ui->lvButtons_H3}});
    connectHandler(m_ui->fpSpread1, &Spread::rowClicked, this, &CutNum::fpSpread1_Click);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, &CutNum::lvButtons_H1_Click);
    connectHandler(m_ui->lvButtons_H3, &QPushButton::clicked, this, &CutNum::lvButtons_H3_Click);
    placeDialog(*this);
    LoadNumrunup();
    m_ui->fpSpread1->setFocus();
}

CutNum::~CutNum() = default;

/// Called for every way of closing the dialog. A close event would not do: Esc sends none.
void CutNum::done(int result)
{
    if (const auto unload = std::exchange(m_unload, {}))
        handle(unload);
    QDialog::done(result);
}

/// Fills the grid and keeps the active row, or activates the last one if there are fewer rows.
void CutNum::LoadNumrunup()
{
    const int row = std::max(m_ui->fpSpread1->activeRow(), 1);
    m_cutOut.LoadNumrunup();
    m_ui->fpSpread1->setActiveRow(std::min(row, m_cutOut.grid.rows()));
}

/// A click on a line, or Space: shows its customer. The arrow keys alone show none.
void CutNum::fpSpread1_Click()
{
    m_ui->Tname->setText(m_cutOut.grid.text(m_ui->fpSpread1->activeRow(), CutColumn::Customer));
}

/// "ยืนยัน": lays off the amount from the line in the active row.
void CutNum::lvButtons_H3_Click()
{
    if (m_cutOut.grid.rows() == 0 || !checkFields())
        return;
    const CutLine line = m_cutOut.lineAt(m_ui->fpSpread1->activeRow());
    const qint32 amount = CLng(m_ui->text1->text());
    if (amount > line.amount) {
        refuse(u"ไม่สามารถคัดเลขได้ ( จำนวนเงินที่คัดออกมีมากเกินไป ) โปรดลองใหม่อีกครั้ง . .. ."_s);
        m_ui->text1->setText(QString::number(line.amount));
        return;
    }
    if (!ask(u"คัดออกเป็นเงิน = "_s + formatBaht(amount) + u" บาท"_s, u"ยืนยันการ คัด เลข ออก"_s,
             BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    m_cutOut.cut(line, amount);
    LoadNumrunup();
}

bool CutNum::checkFields()
{
    if (trimBlanks(m_ui->Tname->text()).isEmpty()) {
        refuse(u"กรุณาเลือก ( ลูกค้าที่ต้องการคัดเลข ก่อน ) โปรดลองใหม่อีกครั้ง . . ."_s);
        return false;
    }
    const QString amount = trimBlanks(m_ui->text1->text());
    if (amount.isEmpty()) {
        refuseAmount(u"กรุณาระบุ ( จำนวนเงิน ) ที่ต้องการคัดออก  ก่อนเริ่มบันทึก"_s);
        return false;
    }
    if (amount == u"0"_s) {
        refuseAmount(u"ไม่สามารถคัดเลขได้ ( จำนวนเงินที่คุณระบุ = 0 ) โปรดลองใหม่อีกครั้ง . .. ."_s);
        return false;
    }
    return true;
}

void CutNum::refuseAmount(const QString &text)
{
    refuse(text);
    m_ui->text1->setFocus();
}

/// " ลบรายการที่เลือกนี้ออกจากฐานข้อมูล": deletes the line in the active row from the book.
void CutNum::lvButtons_H1_Click()
{
    if (m_cutOut.grid.rows() == 0)
        return;
    const int row = m_ui->fpSpread1->activeRow();
    const auto cell = [&](int column) { return trimBlanks(m_cutOut.grid.text(row, column)); };
    if (!ask(u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[ "_s + cell(CutColumn::Customer) + u" ][ "_s
                 + cell(CutColumn::Number) + u" ][ "_s + cell(CutColumn::Amount) + u" บาท ]"_s,
             u"ยืนยันการลบข้อมูล"_s, BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    m_cutOut.remove(row);
    LoadNumrunup();
}
