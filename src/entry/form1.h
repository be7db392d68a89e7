// SPDX-License-Identifier: MIT
// The page "หน้าหลัก": entry of a customer's ticket, line by line, without looking at the screen.
#pragma once

#include "desktop/focustracker.h"
#include "desktop/mediacontrol.h"
#include "entry/ticket.h"
#include "widgets/progressbar.h"

#include <QWidget>

#include <array>
#include <memory>

class Spread;

namespace Ui {
class Form1;
}

class Form1 : public QWidget
{
    Q_OBJECT

public:
    /// @p progress shows the progress of a save; it must outlive the page.
    Form1(ProgressBar &progress, QWidget *parent);
    ~Form1() override;

protected:
    void showEvent(QShowEvent *event) override;

    /// Passes each key press in the entry field to Form_KeyDown() before the field gets it.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void connectControls();
    void Form_Load();

    void Form_KeyDown(int code);
    void controlGotFocus(QWidget *control);
    void controlLostFocus(QWidget *control);
    void Tnumber_GotFocus();
    void Tnumber_LostFocus();
    void Tnumber_KeyPress();

    void Combo1_Click();
    int Combo1_KeyPress(int code);
    void Combo2_Click();
    void C01_Click();
    void Label12_Click();

    void lvButtons_H0_Click();
    void lvButtons_H1_Click();
    void lvButtons_H2_Click();
    void SSTab1_Click();

    void Nubyod();
    void showDiscount(const QString &total);
    void showTabs(const QString &bottom, const QString &top);
    void showZeroTabs();
    bool confirmSave();
    void resetAfterSave();

    std::unique_ptr<Ui::Form1> m_ui;
    ProgressBar &m_progress;
    FocusTracker m_focus;
    Ticket m_ticket;
    MediaControl mmcAudio;
    std::array<Spread *, ClassCount> m_spreads{};
    quint8 GridTouched = 0;  ///< 1 to 8: the grid that had the focus last; 0: none yet
    bool TnumberAway = true; ///< false while Tnumber has the focus
};
