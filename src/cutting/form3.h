// SPDX-License-Identifier: MIT
// The page "คัดหวย": the board with the money on each number, from which numbers are cut.
#pragma once

#include "cutting/board.h"
#include "desktop/focustracker.h"
#include "shell/mdiform1.h"

#include <QWidget>

class Form3;
class Numcut;
class QLabel;
class Spread;

namespace Ui {
class Form3;
}

/// Callbacks that open windows from folders on which cutting/ must not depend. They may be empty
/// only if the page is never shown.
struct BoardOpeners
{
    std::function<void(Form3 &board)> showScan; ///< " &วิเคราะห์เลข": the risk scan
    std::function<void(Form3 &board)> printBoard; ///< " &ปริ้นข้อมูล": report of the board
    std::function<void(Numcut &cutBoard)> printCuts; ///< " &ปริ้นข้อมูล" of Numcut: report of the cuts
};

class Form3 : public QWidget
{
    Q_OBJECT

public:
    /// The parts of @p frame must outlive the page.
    Form3(const Frame &frame, BoardOpeners openers, QWidget *parent);
    ~Form3() override;

    /// The boards as last loaded, which the scan and the report show.
    const Board &board() const { return m_board; }

    /// Shows TopTab or BottomTab and returns its caption.
    QString selectTab(int tab);

    /// Reloads all boards with the whole book and shows the top tab. Lists the customers again and
    /// clears the filter field, unless no customer has a bet. Neither shows nor hides the filter's
    /// controls.
    void FReLoad();

    /// Opens the cut-out dialog for the selected class and number over @p owner. When it closes,
    /// reloads the board of that class or, if a filter is on, all boards with the whole book; calls
    /// @p scanAgain if it is set; and restores the controls that a filter hides or disables.
    void showCutNum(QWidget *owner, const std::function<void()> &scanAgain = {});

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void connectControls();
    void Form_Load();
    void Form_KeyDown();

    int Combo1_KeyPress(int code);
    void filterToCustomer();
    bool readCustomer();
    void showFilter(bool on);
    void showWholeBook();
    void LoadMember(const QStringList &buyers);

    void loadCustomer();
    void loadClass(int at);
    void load(int at, const BoardLines &lines, const HotNumbers &hotNumbers);
    void Nubyod();
    void Nubyod0();
    void addSide(int tab, const QString &caption, qint32 &sum);
    void showSums();
    qint32 sideTotal(int tab) const;

    void SSTab1_Click();
    void fpSpread_DblClick(int at);
    void focusShownBoard();
    void closeCut(const std::function<void()> &scanAgain);

    void lvButtons_H3_Click();
    void lvButtons_H4_Click();
    void lvButtons_H5_Click();
    void lvButtons_H7_Click();
    void showBar(bool shown);

    std::unique_ptr<Ui::Form3> m_ui;
    ProgressBar &m_progress;
    CustomerStrip &m_strip;
    BoardOpeners m_openers;
    FocusTracker m_focus;
    Board m_board;
    std::array<QString, 2> m_captions; ///< of TopTab and BottomTab
    QString m_grandTotal;
    std::array<Spread *, ClassCount> m_spreads{};
    std::array<QLabel *, ClassCount> m_estimates{};
};
