// SPDX-License-Identifier: MIT
#include "risk/vikoc.h"

#include "ui_vikoc.h"

#include "cutting/selection.h"
#include "desktop/dialogplace.h"
#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "risk/coverage.h"
#include "risk/number.h"
#include "shell/globals.h"
#include "widgets/spreadbuttons.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

ViKoC::ViKoC(const Board &board, CutOpener showCutNum, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ViKoC>()), m_board(board),
      m_showCutNum(std::move(showCutNum))
{
    m_ui->setupUi(this);
    m_ui->topCoverage->hide(); // until the first scan
    m_ui->bottomCoverage->hide();
    m_ui->fpSpread1->setSpreadModel(&m_scan.grid);
    m_ui->fpSpread1->setRowPoints(19);
    m_ui->fpSpread1->setColumnDigits(ScanColumn::Type, 10);
    m_ui->fpSpread1->setColumnDigits(ScanColumn::Number, 13);
    m_ui->fpSpread1->setColumnDigits(ScanColumn::Inspect, 17);
    m_ui->fpSpread1->setColumnDigits(ScanColumn::Cut, 16);
    connectControls();
    placeDialog(*this);
}

ViKoC::~ViKoC()
{
    CutOrigin = FromBoard;
}

void ViKoC::connectControls()
{
    connectHandler(m_ui->lvButtons_H0, &QPushButton::clicked, this, &ViKoC::lvButtons_H0_Click);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, &ViKoC::lvButtons_H1_Click);
    const auto *buttons =
        new SpreadButtons(m_ui->fpSpread1, {ScanColumn::Inspect, ScanColumn::Cut});
    connectHandler(buttons, &SpreadButtons::pressed, this, &ViKoC::fpSpread1_ButtonClicked);
}

/// "วิเคราะห์เลขบน": scans the numbers on top.
void ViKoC::lvButtons_H0_Click()
{
    CutOrigin = FromTopScan;
    analyse(true);
}

/// " วิเคราะห์เลขล่าง": scans the numbers at the bottom.
void ViKoC::lvButtons_H1_Click()
{
    CutOrigin = FromBottomScan;
    analyse(false);
}

void ViKoC::analyse(bool updown)
{
    showCoverage(updown);
    const bool found = m_scan.run(updown, *m_ui->pb1);
    m_ui->pb1->hide();
    if (m_scan.grid.rows() > 0) {
        m_ui->fpSpread1->setActiveRow(1);
        m_ui->fpSpread1->setFocus();
    }
    if (!found)
        refuse(u"ไม่พบ ( เลขที่มีความเสี่ยง !! ) ยินดีด้วย . . ."_s);
}

/// Shows the coverage of the classes of a side. Counts the rows of the board, so under its filter
/// only the numbers of one customer.
void ViKoC::showCoverage(bool updown)
{
    const std::array bars{m_ui->pb31,    m_ui->pb32, m_ui->pb21, m_ui->pb22,
                          m_ui->pbrunup, m_ui->pd1,  m_ui->pd2,  m_ui->pd3};
    const std::array labels{m_ui->Label1, m_ui->Label2, m_ui->Label3, m_ui->Label4,
                            m_ui->Label5, m_ui->Label6, m_ui->Label7, m_ui->Label8};
    for (size_t at = 0; at < CoverageBars.size(); ++at) {
        if (BetClasses[at].updown != updown)
            continue;
        const CoverageBar &coverage = CoverageBars[at];
        const int bought = m_board.grids[at].rows();
        bars[at]->setRange(0, coverage.numbers);
        bars[at]->setValue(coverageValue(coverage, bought));
        labels[at]->setText(coverageText(coverage, bought));
    }
    m_ui->topCoverage->setVisible(updown);
    m_ui->bottomCoverage->setVisible(!updown);
}

/// A button in a row: shows the row's details or opens the cut-out dialog.
void ViKoC::fpSpread1_ButtonClicked(int column, int row)
{
    if (column == ScanColumn::Cut)
        cutRow(row);
    else
        inspectRow(row);
}

/// "ตรวจสอบ": shows the details of a row.
void ViKoC::inspectRow(int row)
{
    ScanRow = row;
    Number number(m_scan.grid, this);
    runDialog(number);
}

/// "คัดออก": opens the cut-out dialog for the number of a row. The scan runs again when it closes.
void ViKoC::cutRow(int row)
{
    SelNumType = quint8(numTypeOf(m_scan.grid.text(row, ScanColumn::Type)));
    SelNumValue = m_scan.grid.text(row, ScanColumn::Number);
    SelNum23 = quint8(SelNumValue.size());
    SelUpDown = CutOrigin == FromTopScan;
    m_showCutNum(this, [this] {
        if (CutOrigin == FromTopScan)
            lvButtons_H0_Click();
        else if (CutOrigin == FromBottomScan)
            lvButtons_H1_Click();
    });
    if (m_scan.grid.rows() > 0) // the next key continues here
        m_ui->fpSpread1->setActiveRow(std::min(row, m_scan.grid.rows()));
}
