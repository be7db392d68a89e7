// SPDX-License-Identifier: MIT
// The player on the board: every figure of the whole book, one customer, cuts, the cut numbers.
#include "tour/player.h"

#include "cutting/board.h"
#include "ledger/ledger.h"
#include "runtime/values.h"
#include "widgets/combo.h"
#include "widgets/pushbutton.h"
#include "widgets/spread.h"
#include "widgets/tabstrip.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The labels of the estimates, in the order of the boards.
constexpr std::array EstimateLabels{"Label31", "Label1",  "Label5",  "Label4",
                                    "Label8",  "Label13", "Label12", "Label9"};

QString spreadName(int at)
{
    return u"fpSpread%1"_s.arg(at + 1);
}

} // namespace

void Player::visitBoard(const Draw &draw)
{
    Hands::click(navigation(2));
    for (int at = 0; at < ClassCount; ++at)
        compareBoard(at, draw.boards.value(at));
    takePicture(u"board"_s);
    control<TabStrip>("SSTab1")->setCurrentIndex(0);
    takePicture(u"board-bottom"_s);
    filterCustomer(draw.tickets.first());
}

void Player::cutNumbers()
{
    Hands::click(navigation(2));
    cutHeaviest();
    showCutNumbers();
}

void Player::compareBoard(int at, const DrawBoard &board)
{
    const auto *grid = control<Spread>(qPrintable(spreadName(at)));
    const QStringList found{grid->text(CaptionRow, 1), QString::number(grid->rows()),
                            grid->text(TotalRow, AmountColumn),
                            control<QLabel>(EstimateLabels[size_t(at)])->text()};
    compare(u"board"_s,
            QStringList({board.caption, board.rows, board.total, board.estimate}).join(u'\t'),
            found.join(u'\t'));
    QStringList heavy;
    for (int row = 1; row <= int(board.heavy.size()); ++row) {
        QStringList cells{grid->text(row, NumberColumn), grid->text(row, AmountColumn)};
        if (grid->color(row, NumberColumn) == QColor(HotColor))
            cells += u"hot"_s;
        heavy += cells.join(u'\t');
    }
    compare(u"heaviest of "_s + board.caption, board.heavy.join(u'\n'), heavy.join(u'\n'));
}

/// Money that a statement sums up, as the screens show it.
QString Player::money(const QString &statement)
{
    return formatBaht(numberOf(LedgerConnection->run(statement).rows[0][0]));
}

void Player::filterCustomer(const DrawTicket &ticket)
{
    Hands::click(control<Combo>("Combo1"));
    for (const QChar letter : ticket.customer) {
        if (control<Combo>("Combo1")->currentText() != ticket.customer)
            Hands::type(letter);
    }
    Hands::press(Qt::Key_Return);
    const auto strip = [this](const char *field) {
        return m_window.findChild<QWidget *>(u"Frame6"_s)
            ->findChild<QLineEdit *>(QLatin1String(field))
            ->text();
    };
    const QString lines =
        u" FROM tblNumber, tblMember WHERE NameFK = MPK AND Mname = '%1'"_s.arg(ticket.customer);
    compare(u"strip"_s,
            ticket.customer + u'\t' + money(u"SELECT sum(numBuy) * Mpercen / 100.0"_s + lines),
            strip("Tname") + u'\t' + strip("text3"));
    compare(u"customer's money in 3 digits straight"_s,
            money(u"SELECT total(numBuy)"_s + lines
                  + u" AND num23 = 3 AND updown = -1 AND numType = 1"_s),
            formatBaht(CDbl(control<Spread>("fpSpread1")->text(TotalRow, AmountColumn))));
    takePicture(u"board-customer"_s);
    printReport(control<PushButton>("lvButtons_H5"), u"Fprint2"_s, u"statement"_s);
    Hands::press(Qt::Key_F5);
    compare(u"strip after the filter"_s, QString(), strip("Tname"));
}

void Player::findNumber(const QString &number)
{
    Hands::click(control<QLineEdit>("text1"));
    Hands::type(number);
    Hands::press(Qt::Key_Return);
}

/// Cuts the heaviest straight number of three digits, one line in part and one in full.
void Player::cutHeaviest()
{
    auto *grid = control<Spread>("fpSpread1");
    const QString number = grid->text(1, NumberColumn);
    const QString before = money(u"SELECT sum(numBuy) FROM tblNumber"_s);
    findNumber(number);
    compare(u"row of the number found"_s, u"1"_s, QString::number(grid->activeRow()));
    m_hands.inNextDialog([this](QWidget *dialog) { cutInDialog(dialog); });
    Hands::click(grid->viewport());
    grid->setFocus();
    grid->setActiveRow(1);
    Hands::press(Qt::Key_Return); // returns when the dialog has been closed
    compare(
        u"money in the book and out of it"_s, before,
        money(
            u"SELECT (SELECT sum(numBuy) FROM tblNumber) + (SELECT sum(numBuy) FROM tblNumberCut)"_s));
    compare(
        u"board after the cut"_s,
        money(
            u"SELECT sum(numBuy) FROM tblNumber WHERE num23 = 3 AND updown = -1 AND numType = 1"_s),
        grid->text(TotalRow, AmountColumn));
    takePicture(u"board-cut"_s);
}

void Player::cutInDialog(QWidget *dialog)
{
    const auto come = [&] {
        if (!Hands::focusComesTo(dialog)) // a box gives it back late
            compare(u"cut-out"_s, u"in front"_s, u"behind"_s);
    };
    come();
    auto *lines = dialog->findChild<Spread *>(u"fpSpread1"_s);
    const auto sum = [&] { return lines->text(FirstHeaderRow, 5); };
    const QString less = formatBaht(CDbl(sum().section(u' ', 0, 0)) - 10) + u" บาท"_s;
    Hands::press(Qt::Key_Space);
    Hands::press(Qt::Key_Tab);
    confirmCut(dialog, u"10"_s, {u"คัดออกเป็นเงิน = 10 บาท"_s});
    compare(u"lines after the cut in part"_s, less, sum());
    takePicture(u"cut"_s, dialog);
    const int count = lines->rows();
    const QString whole = trimBlanks(lines->text(lines->activeRow(), 5));
    confirmCut(dialog, u"99999"_s,
               {u"ไม่สามารถคัดเลขได้ ( จำนวนเงินที่คัดออกมีมากเกินไป ) โปรดลองใหม่อีกครั้ง . .. ."_s});
    m_hands.answerNextWithOk();
    come();
    Hands::press(Qt::Key_Return); // with the line's amount, which the refusal has put there
    compare(u"question of the full cut"_s, u"คัดออกเป็นเงิน = "_s + whole + u" บาท"_s,
            m_hands.takeBoxes().join(u'\n'));
    compare(u"lines after the full cut"_s, QString::number(count - 1),
            QString::number(lines->rows()));
    come();
    lines->setFocus(); // in the amount Esc is a key like any other
    Hands::press(Qt::Key_Escape);
    compare(u"cut-out after Esc"_s, u"0"_s, QString::number(dialog->isVisible()));
    dialog->close();
}

void Player::confirmCut(QWidget *dialog, const QString &amount, const QStringList &boxes)
{
    auto *field = dialog->findChild<QLineEdit *>(u"text1"_s);
    Hands::focusComesTo(dialog);
    field->setFocus();
    field->selectAll();
    Hands::type(amount);
    m_hands.answerNextWithOk();
    Hands::press(Qt::Key_Return);
    compare(u"boxes of the cut"_s, boxes.join(u'\n'), m_hands.takeBoxes().join(u'\n'));
}

void Player::showCutNumbers()
{
    m_hands.inNextDialog([this](QWidget *dialog) {
        const auto *top = dialog->findChild<Spread *>(u"fpSpread1"_s);
        compare(u"cut numbers"_s, money(u"SELECT sum(numBuy) FROM tblNumberCut"_s),
                top->text(TotalRow, AmountColumn));
        takePicture(u"cutnumbers"_s, dialog);
        printReport(dialog->findChild<PushButton *>(u"lvButtons_H5"_s), u"Fprint3"_s, u"cuts"_s);
        Hands::click(dialog->findChild<PushButton *>(u"lvButtons_H0"_s));
    });
    Hands::click(control<PushButton>("lvButtons_H4"));
}
