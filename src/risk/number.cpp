// SPDX-License-Identifier: MIT
#include "risk/number.h"

#include "ui_number.h"

#include "desktop/dialogplace.h"
#include "risk/inspection.h"
#include "risk/scan.h"
#include "shell/globals.h"

using namespace Qt::StringLiterals;

Number::Number(const SpreadModel &scan, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Number>())
{
    m_ui->setupUi(this);
    connect(m_ui->lvButtons_H0, &QPushButton::clicked, this, &QDialog::reject);
    Form_Load(scan);
    m_ui->lvButtons_H0->setFocus(); // ignores the auto-repeat of the Enter that opened the dialog
}

Number::~Number() = default;

void Number::Form_Load(const SpreadModel &scan)
{
    placeDialog(*this);
    if (CutOrigin == FromTopScan)
        setWindowTitle(u"ตรวจสอบเลข ( บน )"_s);
    else if (CutOrigin == FromBottomScan)
        setWindowTitle(u"ตรวจสอบเลข ( ล่าง )"_s);
    const Inspection shown = inspect(scan, ScanRow);
    m_ui->Label13->setText(shown.heading);
    m_ui->Label24->setText(shown.bought);
    if (shown.loss)
        m_ui->Label2->setText(*shown.loss);
    m_ui->Label5->setText(shown.risk);
    m_ui->Text1->setPlainText(shown.related);
}
