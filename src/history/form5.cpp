// SPDX-License-Identifier: MIT
#include "history/form5.h"

#include "ui_form5.h"

#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "history/drawlog.h"
#include "runtime/values.h"

#include <algorithm>

using namespace Qt::StringLiterals;

Form5::Form5(ProgressBar &progress, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::Form5>()), m_progress(progress)
{
    m_ui->setupUi(this);
    m_ui->fpSpread1->setSpreadModel(&m_draws);
    m_ui->fpSpread1->setRowPoints(19);
    setFocusProxy(m_ui->fpSpread1);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, &Form5::lvButtons_H1_Click);
    Form_Load();
}

Form5::~Form5() = default;

void Form5::Form_Load()
{
    reload();
    m_ui->fpSpread1->setColumnDigits(LogDateColumn, 16);
    m_ui->fpSpread1->setColumnDigits(LogTopColumn, 12);
    m_ui->fpSpread1->setColumnDigits(LogBottomTwoColumn, 12);
    m_ui->fpSpread1->setColumnDigits(LogPayoutColumn, 15);
    m_ui->fpSpread1->setColumnDigits(LogProfitColumn, 15);
    m_ui->fpSpread1->setColumnDigits(m_draws.columns(), 0);
}

/// Lists the draws again and keeps the position of the active row, so that several draws can be
/// deleted one after another.
void Form5::reload()
{
    const int row = m_ui->fpSpread1->activeRow();
    Loaddata(m_draws, m_progress);
    m_ui->fpSpread1->setActiveRow(std::clamp(row, 1, std::max(1, m_draws.rows())));
}

/// " ลบรายการที่เลือกนี้ออกจากฐานข้อมูล": deletes the draw in the active row.
void Form5::lvButtons_H1_Click()
{
    const int row = m_ui->fpSpread1->activeRow();
    if (row == 0)
        return;
    if (!ask(u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[  งวดที่  ][  "_s + m_draws.text(row, LogDateColumn)
                 + u"  ]"_s,
             u"ยืนยันการลบข้อมูล"_s, BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    deleteClosedDraw(CLng(m_draws.text(row, 0)));
    inform(u"ทำการ ลบข้อมูล ออกจากระบบเรียบร้อยแล้ว."_s);
    reload();
}
