// SPDX-License-Identifier: MIT
#include "cutting/form3.h"

#include "ui_form3.h"

#include "cutting/cutnum.h"
#include "cutting/numcut.h"
#include "cutting/selection.h"
#include "desktop/dialogplace.h"
#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "entry/namecombo.h"
#include "entry/save.h"
#include "entry/sidetabs.h"
#include "fields/fieldguard.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"
#include "widgets/searchicon.h"

#include <QApplication>
#include <QFocusEvent>
#include <QShortcut>

using namespace Qt::StringLiterals;

Form3::Form3(const Frame &frame, BoardOpeners openers, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::Form3>()), m_progress(frame.progress),
      m_strip(frame.strip), m_openers(std::move(openers)), m_focus(this)
{
    m_ui->setupUi(this);
    m_spreads = {m_ui->fpSpread1, m_ui->fpSpread2, m_ui->fpSpread3, m_ui->fpSpread4,
                 m_ui->fpSpread5, m_ui->fpSpread6, m_ui->fpSpread7, m_ui->fpSpread8};
    m_estimates = {m_ui->Label31, m_ui->Label1,  m_ui->Label5,  m_ui->Label4,
                   m_ui->Label8,  m_ui->Label13, m_ui->Label12, m_ui->Label9};
    for (int at = 0; at < ClassCount; ++at) {
        m_spreads[at]->setSpreadModel(&m_board.grids[at]);
        m_spreads[at]->hideColumns({DigitsColumn, SideColumn});
        m_spreads[at]->setAccessibleName(BetClasses[at].caption.toString());
    }
    m_ui->SSTab1->addTab(QString());
    m_ui->SSTab1->addTab(QString());
    m_ui->lvButtons_H3->setIcon(searchIcon());
    m_ui->lvButtons_H7->hide();
    m_ui->Frame2->hide();
    connectControls();
    Form_Load();
}

Form3::~Form3()
{
    m_strip.hide();
}

/// Passes the focus to the first board. With a focus proxy, Tab would skip the controls before it.
void Form3::focusInEvent(QFocusEvent *event)
{
    m_ui->fpSpread1->setFocus(event->reason());
}

void Form3::connectControls()
{
    new FieldGuard(this, &m_focus,
                   {{.field = m_ui->text1, .longest = 3, .enterClicks = m_ui->lvButtons_H3}});
    for (int at = 0; at < ClassCount; ++at)
        connectHandler(m_spreads[at], &Spread::rowOpened, this,
                       [this, at] { fpSpread_DblClick(at); });
    m_ui->Combo1->keyPress = [this](int code) { return Combo1_KeyPress(code); };
    connectHandler(m_ui->SSTab1, &TabStrip::clicked, this, &Form3::SSTab1_Click);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, [this] { showBar(false); });
    connectHandler(m_ui->lvButtons_H2, &QPushButton::clicked, this, [this] { showBar(true); });
    connectHandler(m_ui->lvButtons_H3, &QPushButton::clicked, this, &Form3::lvButtons_H3_Click);
    connectHandler(m_ui->lvButtons_H4, &QPushButton::clicked, this, &Form3::lvButtons_H4_Click);
    connectHandler(m_ui->lvButtons_H5, &QPushButton::clicked, this, &Form3::lvButtons_H5_Click);
    connectHandler(m_ui->lvButtons_H6, &QPushButton::clicked, this,
                   [this] { m_openers.showScan(*this); });
    connectHandler(m_ui->lvButtons_H7, &QPushButton::clicked, this, &Form3::lvButtons_H7_Click);
    auto *reload = new QShortcut(Qt::Key_F5, this);
    reload->setContext(Qt::WindowShortcut); // the customer strip is outside the page
    reload->setAutoRepeat(false);
    connectHandler(reload, &QShortcut::activated, this, &Form3::Form_KeyDown);
}

void Form3::Form_Load()
{
    resumeNext([this] { m_board.SavedTicketTotal = savedDiscounts(); });
    FReLoad();
}

/// F5 anywhere in the main window: leaves the filter.
void Form3::Form_KeyDown()
{
    if (MemberFilterOn && !QApplication::activeModalWidget())
        m_ui->lvButtons_H7->click(); // works also while the button is hidden after a cut
}

void Form3::FReLoad()
{
    SelUpDown = true;
    const HotNumbers hotNumbers(readHotNumbers());
    for (int at = 0; at < ClassCount; ++at)
        load(at, readBoard(BetClasses[at]), hotNumbers);
    showSums();
    resumeNext([this] { LoadMember(readBuyers()); });
}

/// Loads all boards with the bets of the filter's customer. If they cannot be read, all boards are
/// empty. An error in one board does not keep the others from being loaded.
void Form3::loadCustomer()
{
    std::array<BoardLines, ClassCount> boards;
    HotNumbers hotNumbers;
    bool isRead = false;
    resumeNext([&] {
        hotNumbers = HotNumbers(readHotNumbers());
        boards = readCustomerBoards(m_board.FilterName);
        isRead = true;
    });
    for (int at = 0; at < ClassCount; ++at) {
        if (isRead)
            resumeNext([&] { load(at, boards[at], hotNumbers); });
        else
            m_board.SetupSpread(at);
    }
    showSums();
    resumeNext([this] { LoadMember(readBuyers()); });
}

void Form3::load(int at, const BoardLines &lines, const HotNumbers &hotNumbers)
{
    m_board.load(at, lines, hotNumbers, m_progress);
    m_estimates[at]->setText(m_board.estimates[at]);
    m_board.takeTotal(at);
    if (at < TopClassCount)
        Nubyod();
    else
        Nubyod0();
}

/// Reloads the board of one class. This is enough after a cut, which changes only that board.
void Form3::loadClass(int at)
{
    load(at, readBoard(BetClasses[at]), HotNumbers(readHotNumbers()));
    showSums();
    resumeNext([this] { LoadMember(readBuyers()); });
}

/// Adds up the top and the grand total, and shows the top tab.
void Form3::Nubyod()
{
    m_progress.finish();
    m_ui->SSTab1->setTab(TopTab);
    addSide(TopTab, u"   บน ( ยอดรวม "_s, m_board.TopSum);
}

/// Like Nubyod() for the bottom, but shows the tab of the selection, so that the board stays on the
/// side of a cut.
void Form3::Nubyod0()
{
    m_progress.finish();
    m_ui->SSTab1->setTab(SelUpDown ? TopTab : BottomTab);
    addSide(BottomTab, u"   ล่าง ( ยอดรวม "_s, m_board.BottomSum);
}

/// Prepares the caption of a side's tab, sets @p sum to the side's total and, unless the customer
/// strip is shown, works out the grand total. showSums() displays captions and grand total. A total
/// of 0 is displayed as "", from which CLng() throws, so @p sum keeps its last value then.
void Form3::addSide(int tab, const QString &caption, qint32 &sum)
{
    resumeNext([&] { m_captions[tab] = caption + formatBaht(sideTotal(tab)) + u" )"_s; });
    resumeNext([&] { sum = CLng(formatBaht(sideTotal(tab))); });
    if (!m_strip.isShown())
        resumeNext([&] {
            m_grandTotal = formatBaht(addLong({m_board.TopSum, m_board.BottomSum}));
        });
}

/// Shows the captions and the grand total. Called once per reload and not for each board, because
/// a tab bar computes its layout again whenever a caption changes.
void Form3::showSums()
{
    for (const int tab : {TopTab, BottomTab})
        m_ui->SSTab1->setTabText(tab, m_captions[tab]);
    if (!m_strip.isShown()) // the total of the whole book stays while a customer is shown
        m_ui->text2->setText(m_grandTotal);
}

qint32 Form3::sideTotal(int tab) const
{
    return tab == TopTab ? topTotal(m_board.BoardSums) : bottomTotal(m_board.BoardSums);
}

/// Lists the customers with a bet. If there are none, the old list stays.
void Form3::LoadMember(const QStringList &buyers)
{
    if (buyers.isEmpty())
        return;
    m_ui->Combo1->setList(buyers);
    m_ui->Combo1->setCurrentIndex(-1);
    m_ui->Combo1->clearEditText();
}

/// Completes the name; Enter filters the boards by it.
int Form3::Combo1_KeyPress(int code)
{
    return nameKeyPress(*m_ui->Combo1, code, [this] { filterToCustomer(); });
}

/// Shows only the bets of one customer. The boards need the whole name, while any part of it finds
/// the discount.
void Form3::filterToCustomer()
{
    MemberFilterOn = true;
    m_board.FilterName = m_ui->Combo1->currentText();
    m_ui->SSTab1
        ->setFocus(); // hiding Combo1 would move it to a number field, which switches the keyboard
    showFilter(true);
    if (!readCustomer()) {
        refuse(u"ไม่พบชื่อลูกค้ารายนี้ อยู่ใน ฐานข้อมูล โปรดลองใหม่อีกครั้ง ..."_s);
        MemberFilterOn = false;
        showFilter(false);
        m_ui->Combo1->setFocus();
        return;
    }
    loadCustomer();
    resumeNext([this] {
        const double percent = CDbl(m_strip.text2.text());
        m_strip.text3.setText(formatBaht(percent * sumTotal(m_board.BoardSums) / 100));
    });
    m_ui->text2->setEnabled(false);
    m_ui->text3->setEnabled(false);
    m_spreads[m_ui->SSTab1->tab() == TopTab ? 0 : TopClassCount]->setFocus();
    if (m_board.isEmpty())
        refuse(u"ไม่พบข้อมูล ลูกค้ารายนี้ ( ไม่ได้ซื้อเลขใด ๆ ใน งวดนี้  ) . . ."_s);
}

/// Shows the customer of the filter in the strip. Returns false if there is none.
bool Form3::readCustomer()
{
    const auto percent = customerPercent(m_board.FilterName);
    if (!percent)
        return false;
    m_strip.text2.setText(*percent);
    m_strip.Tname.setText(m_board.FilterName);
    m_strip.show();
    return true;
}

/// Shows the button that leaves the filter or, with @p on false, the controls that start it.
void Form3::showFilter(bool on)
{
    m_ui->Combo1->setVisible(!on);
    m_ui->Combo1->setEnabled(!on);
    m_ui->Frame5->setVisible(!on);
    m_ui->lvButtons_H7->setVisible(on);
}

/// Shows the controls of the whole book. Leaves MemberFilterOn to the caller: after a cut it stays
/// set, so that F5 still works.
void Form3::showWholeBook()
{
    m_ui->text2->setEnabled(true);
    m_ui->text3->setEnabled(true);
    showFilter(false);
    m_strip.hide();
}

/// "รีโหลดข้อมูล(F5)": leaves the filter and reloads.
void Form3::lvButtons_H7_Click()
{
    const bool hadFocus = m_ui->lvButtons_H7->hasFocus();
    MemberFilterOn = false;
    showWholeBook();
    if (hadFocus)
        m_ui->Combo1->setFocus();
    FReLoad();
}

void Form3::SSTab1_Click()
{
    showSide(*m_ui->SSTab1, m_spreads);
}

QString Form3::selectTab(int tab)
{
    m_ui->SSTab1->setTab(tab);
    return m_ui->SSTab1->tabText(tab);
}

/// "ค้นหาเลข": finds a number in all boards of its length, on both tabs, and activates its rows.
void Form3::lvButtons_H3_Click()
{
    QList<Spread *> boards;
    for (int at = 0; at < ClassCount; ++at) {
        if (BetClasses[at].num23 == m_ui->text1->text().size())
            boards += m_spreads[at];
    }
    searchNumber(*m_ui->text1, NumberColumn, boards);
}

/// A double click on a number, or Enter: opens the cut-out dialog for it.
void Form3::fpSpread_DblClick(int at)
{
    const SpreadModel &grid = m_board.grids[at];
    if (grid.rows() == 0)
        return;
    const int row = m_spreads[at]->activeRow();
    SelNumType = quint8(CInt(grid.text(row, TypeColumn)));
    SelNumValue = grid.text(row, NumberColumn);
    SelNum23 = quint8(CInt(grid.text(row, DigitsColumn)));
    SelUpDown = grid.text(row, SideColumn) == u"True"_s;
    showCutNum(window());
    m_spreads[at]->setActiveRow(std::min(row, grid.rows())); // the next Enter continues here
}

/// Sets the focus to the first visible board with rows, so that the next Enter opens a row.
void Form3::focusShownBoard()
{
    const int first = m_ui->SSTab1->tab() == TopTab ? 0 : TopClassCount;
    const int end = first == 0 ? TopClassCount : ClassCount;
    int at = first;
    while (at < end && m_board.grids[at].rows() == 0)
        ++at;
    m_spreads[at < end ? at : first]->setFocus();
}

void Form3::showCutNum(QWidget *owner, const std::function<void()> &scanAgain)
{
    CutNum dialog([&] { closeCut(scanAgain); }, owner);
    runDialog(dialog);
}

/// Called when the cut-out dialog closes. A filtered board shows the whole book again.
void Form3::closeCut(const std::function<void()> &scanAgain)
{
    // The grid that gets the focus back when the dialog is gone.
    const auto *focus = qobject_cast<Spread *>(window()->focusWidget());
    if (MemberFilterOn)
        FReLoad();
    else if (const int at = selectedClass(); at >= 0)
        loadClass(at);
    if (scanAgain)
        scanAgain();
    // Hidden after the reload, so that text2 keeps the total from before the filter: while the
    // strip is shown, a reload does not change it.
    showWholeBook();
    if (focus && focus->isHidden()) // the reload has switched to the other tab
        focusShownBoard();
}

/// " &แสดงเลขที่คัดออก": shows the cut numbers.
void Form3::lvButtons_H4_Click()
{
    Numcut dialog(m_openers.printCuts, window());
    runDialog(dialog);
}

/// " &ปริ้นข้อมูล": opens the report of the boards.
void Form3::lvButtons_H5_Click()
{
    if (m_board.isEmpty())
        refuse(u"ไม่สามารถส่งออกได้ ( ไม่มีข้อมูลในตาราง ) โปรดลองใหม่อีกครั้ง . .  ."_s);
    else
        m_openers.printBoard(*this);
}

/// " &ซ่อนแทบ " and " &แสดงแทบ ": hides the estimates from onlookers, and shows them again.
void Form3::showBar(bool shown)
{
    m_ui->Frame3->setVisible(shown);
    m_ui->Frame2->setVisible(!shown);
}
