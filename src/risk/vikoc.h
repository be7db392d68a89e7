// SPDX-License-Identifier: MIT
// The dialog "วิเคราะห์เลขที่มีความเสี่ยง": bets that one result could hit together.
#pragma once

#include "cutting/board.h"
#include "risk/scan.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class ViKoC;
}

/// Opens the cut-out dialog for the selected class and number over @p owner. When it closes, the
/// board is reloaded and @p scanAgain is called.
using CutOpener = std::function<void(QWidget *owner, const std::function<void()> &scanAgain)>;

class ViKoC : public QDialog
{
    Q_OBJECT

public:
    /// The coverage is that of @p board, which must outlive the dialog.
    ViKoC(const Board &board, CutOpener showCutNum, QWidget *parent);

    /// Sets CutOrigin back to FromBoard.
    ~ViKoC() override;

    void lvButtons_H0_Click();
    void lvButtons_H1_Click();

private:
    void connectControls();
    void analyse(bool updown);
    void showCoverage(bool updown);
    void fpSpread1_ButtonClicked(int column, int row);
    void inspectRow(int row);
    void cutRow(int row);

    std::unique_ptr<Ui::ViKoC> m_ui;
    const Board &m_board;
    CutOpener m_showCutNum;
    RiskScan m_scan;
};
