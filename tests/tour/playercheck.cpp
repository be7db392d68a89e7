// SPDX-License-Identifier: MIT
// The end of a draw in the tour: the result is keyed and checked, the draw closed, the history
// read.
#include "tour/player.h"

#include "desktop/region.h"
#include "ledger/ledger.h"
#include "runtime/values.h"
#include "widgets/pushbutton.h"
#include "widgets/spread.h"

#include <QLabel>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString joined(const QString &sql)
{
    QStringList fields;
    const QVariantList row = LedgerConnection->run(sql).rows.value(0);
    for (const QVariant &field : row)
        fields += field.toString();
    return fields.join(u' ');
}

QString today()
{
    return QDate::currentDate().toString(Qt::ISODate);
}

} // namespace

QString Player::amounts() const
{
    return control<QLabel>("Label19")->text() + u" / "_s + control<QLabel>("Label21")->text();
}

QStringList Player::cells(int columns) const
{
    const auto *grid = control<Spread>("fpSpread1");
    QStringList rows;
    for (int row = 1; row <= grid->rows(); ++row) {
        QStringList texts;
        for (int column = 1; column <= columns; ++column)
            texts += grid->text(row, column);
        rows += texts.join(u'\t');
    }
    return rows;
}

void Player::runCheck(const QString &scene)
{
    Hands::click(control<PushButton>("Command18"));
    compare(u"boxes of the check"_s, QString(), m_hands.takeBoxes().join(u'\n'));
    takePicture(scene);
}

void Player::checkDraw(const Draw &draw)
{
    const QString settled = draw.payout + u" / "_s + draw.profit;
    Hands::click(navigation(3));
    takePicture(u"result"_s);
    Hands::type(draw.result);
    runCheck(u"winners"_s);
    compare(u"winners"_s, draw.winners.join(u'\n'), cells(7).join(u'\n'));
    compare(u"amounts"_s, settled, amounts());
    printReport(control<PushButton>("lvButtons_H5"), u"FPrint1"_s, u"winners"_s);

    checkCutBook(draw);
    Hands::click(control<QRadioButton>("Option1"));
    runCheck(u"winners-again"_s);
    compare(u"amounts of the second run"_s, settled, amounts());
    const QString kept = u"%1 %2 %3 %4"_s.arg(draw.result.first(3), today(),
                                              QString::number(CDbl(draw.profit), 'f', 0),
                                              QString::number(CDbl(draw.payout), 'f', 0));
    compare(u"result kept"_s, kept,
            joined(u"SELECT num3up, numdate, moneyup, moneydown FROM tblTrue"_s));
}

/// Without a winner among them the lines cut out put zeros in place of the money kept; with one
/// they keep nothing.
void Player::checkCutBook(const Draw &draw)
{
    const QString money = u"SELECT moneyup, moneydown FROM tblTrue"_s;
    Hands::click(control<QRadioButton>("Option2"));
    runCheck(u"cut-book"_s);
    compare(u"amounts of an empty cut book"_s, u"0 / 0"_s, amounts());
    compare(u"money kept"_s, u"0 0"_s, joined(money));

    LedgerConnection->run(
        u"INSERT INTO tblNumberCut (NameFK, num23, updown, numType, numValue, numBuy)"
        " VALUES (1, 3, -1, 1, ?, 20)"_s,
        {draw.result.first(3)});
    LedgerConnection->run(u"UPDATE tblTrue SET moneyup = 1, moneydown = 2"_s);
    runCheck(u"cut-winner"_s);
    compare(u"amounts of the cut book"_s, u"เลขคัดออก / เลขคัดออก"_s, amounts());
    compare(u"rows of the cut book"_s, u"1"_s, QString::number(cells(1).size()));
    compare(u"money kept"_s, u"1 2"_s, joined(money));
    LedgerConnection->run(u"DELETE FROM tblNumberCut"_s); // never was in the book
}

void Player::compareClosing(const Ending &ending)
{
    compare(u"end of the program"_s, u"clean"_s, ending.clean ? u"clean"_s : u"not clean"_s);
    compare(u"boxes of the closing"_s,
            u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลขทั้งหมดของงวดนี้ !! ) ออกทั้งหมด แน่ใจ?\n"
            "ลบข้อมูล เลขงวดนี้ ทั้งหมดเสร็จสิ้น ( โปรดเปิดโปรแกรมใหม่อีกครั้ง .. )"_s,
            ending.boxes.join(u'\n'));
}

void Player::checkHistory(const Draw &draw)
{
    Hands::click(navigation(4));
    QStringList bottom;
    for (int prize = 3; prize < 15; prize += 3)
        bottom += draw.result.mid(prize, 3);
    compare(u"history"_s,
            QStringList{shortDate(QDate::currentDate()), draw.result.first(3),
                        bottom.join(u"  ,  "_s), draw.result.last(2), draw.payout, draw.profit}
                .join(u'\t'),
            cells(6).join(u'\n'));
    compare(u"book after the closing"_s, u"0 0 0 0"_s,
            joined(u"SELECT (SELECT count(*) FROM tblNumber), (SELECT count(*) FROM tblNumberCut),"
                   " (SELECT count(*) FROM tblNumberFix), (SELECT count(*) FROM tblRMoney)"_s));
    takePicture(u"history"_s);
    m_hands.inNextDialog([](QWidget *settings) { // with an empty book no draw can be closed
        Hands::click(settings->findChild<PushButton *>(u"lvButtons_H0"_s));
        settings->close();
    });
    Hands::click(navigation(5));
    compare(u"closing an empty book"_s, u"ไม่สามารถลบข้อมูลได้ ( ไม่มีข้อมูลเลข ) อยู่ในฐานข้อมูล . . . . ."_s,
            m_hands.takeBoxes().join(u'\n'));
}
