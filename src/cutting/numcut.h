// SPDX-License-Identifier: MIT
// The dialog "เลขที่ถูกคัดออก ( ตีออก )": shows the cut numbers.
#pragma once

#include "cutting/cutboard.h"
#include "desktop/focustracker.h"

#include <QDialog>

#include <functional>
#include <memory>

class Spread;

namespace Ui {
class Numcut;
}

class Numcut : public QDialog
{
    Q_OBJECT

public:
    /// @p print opens the report of the lists.
    Numcut(std::function<void(Numcut &)> print, QWidget *parent);
    ~Numcut() override;

    const CutBoard &cutBoard() const { return m_cutBoard; }

private:
    void Form_Load();
    void lvButtons_H3_Click();
    void lvButtons_H5_Click();

    std::unique_ptr<Ui::Numcut> m_ui;
    std::function<void(Numcut &)> m_print;
    FocusTracker m_focus;
    CutBoard m_cutBoard;
    std::array<Spread *, 2> m_spreads{};
};
