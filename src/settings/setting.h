// SPDX-License-Identifier: MIT
// The dialog "ตั้งค่าหวย": payout rates, hot numbers, closing a draw and wiping the Ledger.
#pragma once

#include "desktop/focustracker.h"
#include "settings/closing.h"
#include "settings/rates.h"
#include "widgets/spreadmodel.h"

#include <QDialog>

#include <memory>

class QLineEdit;

namespace Ui {
class Setting;
}

class Setting : public QDialog
{
    Q_OBJECT

public:
    /// @p boardShowsRows is called before a draw is closed.
    Setting(QWidget *parent, BoardShowsRows boardShowsRows);
    ~Setting() override;

private:
    void connectControls();
    void Form_Load();
    void LoadNumberFix();
    void LoadMoney();

    void lvButtons_H0_Click();
    void lvButtons_H1_Click();
    void lvButtons_H2_Click();
    void lvButtons_H3_Click();
    void lvButtons_H4_Click();
    void lvButtons_H5_Click();
    void refuseAt(QLineEdit *field, const QString &words);

    std::unique_ptr<Ui::Setting> m_ui;
    FocusTracker m_focus;
    SpreadModel m_hotNumbers;
    BoardShowsRows m_boardShowsRows;
    std::array<QLineEdit *, RateColumns.size()> m_rates{}; ///< in the order of RateColumns
};
