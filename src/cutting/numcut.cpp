// SPDX-License-Identifier: MIT
#include "cutting/numcut.h"

#include "ui_numcut.h"

#include "desktop/dialogplace.h"
#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "fields/fieldguard.h"
#include "widgets/searchicon.h"

using namespace Qt::StringLiterals;

Numcut::Numcut(std::function<void(Numcut &)> print, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Numcut>()), m_print(std::move(print)),
      m_focus(this)
{
    m_ui->setupUi(this);
    m_spreads = {m_ui->fpSpread1, m_ui->fpSpread2};
    for (size_t list = 0; list < m_spreads.size(); ++list)
        m_spreads[list]->setSpreadModel(&m_cutBoard.grids[list]);
    for (Spread *spread : m_spreads)
        spread->setColumnDigits(CutTypeColumn, 12); // narrower than an equal share
    m_ui->lvButtons_H3->setIcon(searchIcon());
    new FieldGuard(this, &m_focus,
                   {{.field = m_ui->text1, .longest = 3, .enterClicks = m_ui->lvButtons_H3}});
    connect(m_ui->lvButtons_H0, &QPushButton::clicked, this, &QDialog::reject);
    connectHandler(m_ui->lvButtons_H3, &QPushButton::clicked, this, &Numcut::lvButtons_H3_Click);
    connectHandler(m_ui->lvButtons_H5, &QPushButton::clicked, this, &Numcut::lvButtons_H5_Click);
    Form_Load();
}

Numcut::~Numcut() = default;

void Numcut::Form_Load()
{
    placeDialog(*this);
    m_cutBoard.LoadNumcutup(*m_ui->pb1);
    m_cutBoard.LoadNumcutdown(*m_ui->pb1);
    m_ui->pb1->hide();
    m_ui->fpSpread1->setFocus();
}

/// "ค้นหาเลข": finds a number in both lists and activates its rows.
void Numcut::lvButtons_H3_Click()
{
    searchNumber(*m_ui->text1, CutNumberColumn, {m_spreads.begin(), m_spreads.end()});
}

/// " &ปริ้นข้อมูล": opens the report of both lists.
void Numcut::lvButtons_H5_Click()
{
    if (m_cutBoard.isEmpty())
        refuse(u"ไม่สามารถส่งออกได้ ( ไม่มีข้อมูลในตาราง ) โปรดลองใหม่อีกครั้ง . .  ."_s);
    else
        m_print(*this);
}
