// SPDX-License-Identifier: MIT
// The page "ตรวจหวย": takes the official result digit by digit and shows the winners, their payouts
// and the profit.
#pragma once

#include "desktop/focustracker.h"
#include "drawcheck/settlement.h"
#include "fields/fieldguard.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Ui {
class Form4;
}

class Form4 : public QWidget
{
    Q_OBJECT

public:
    /// Opens the report of a check, in a window over @p opener.
    using Printer = std::function<void(const DrawCheck &check, QWidget *opener)>;

    /// @p progress shows the progress of a check. It must outlive the page.
    Form4(ProgressBar &progress, Printer printer, QWidget *parent);
    ~Form4() override;

protected:
    /// Selects the digit in a clicked box, so that the next key replaces it.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void connectControls();
    QList<FieldRule> digitRules() const;
    void Form_Load();

    void Command18_Click();
    void Option_Click(Book book);
    void lvButtons_H1_Click();
    void lvButtons_H5_Click();

    ResultDigits keyedDigits() const;
    void showAmounts();

    std::unique_ptr<Ui::Form4> m_ui;
    ProgressBar &m_progress;
    Printer m_printer;
    FocusTracker m_focus;
    DrawCheck m_check;
    std::array<QLineEdit *, DigitCount> m_boxes{}; ///< in reading order
};
