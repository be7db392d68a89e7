// SPDX-License-Identifier: MIT
// The model of the trade against the draws of the tour, whose figures were worked out elsewhere.
#include "model/trade.h"
#include "tour/drawfile.h"

#include <QTest>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

class ModelTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheDraw_data();
    void agreesWithTheDraw();

private:
    static void keyTicket(model::Book &book, const DrawTicket &stated);
    static void compareBoard(const model::Book &book, size_t betClass, const DrawBoard &stated);
};

void ModelTest::agreesWithTheDraw_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("draw 0") << u"/draw0.txt"_s;
    QTest::newRow("draw 1") << u"/draw1.txt"_s;
}

void ModelTest::agreesWithTheDraw()
{
    QFETCH(QString, file);
    const Draw draw = Draw::read(QStringLiteral(TOUR_DRAWS) + file);
    model::Book book;
    for (const DrawMember &member : draw.members)
        book.customers[book.customer(member.name)] = {member.name, member.percent,
                                                      member.telephone};
    book.hot = draw.hotNumbers;
    for (const DrawTicket &ticket : draw.tickets)
        keyTicket(book, ticket);
    qint64 money = 0;
    for (const auto &[key, line] : book.lines)
        money += line.amount;
    const qint64 discounts =
        std::accumulate(book.discounts.begin(), book.discounts.end(), qint64(0),
                        [](qint64 sum, const auto &each) { return sum + each.second; });
    QCOMPARE(QStringList(
                 {QString::number(book.lines.size()), model::baht(money), model::baht(discounts)}),
             draw.book.split(u'\t'));
    for (size_t at = 0; at < model::Classes.size(); ++at)
        compareBoard(book, at, draw.boards.at(qsizetype(at)));
    QStringList risks;
    for (const bool top : {true, false}) {
        for (const QString &row : book.scan(top))
            risks += QStringList({top ? u"บน"_s : u"ล่าง"_s, row.section(u'|', 0, 0),
                                  row.section(u'|', 1, 1), row.section(u'|', 3, 3).chopped(1)})
                         .join(u'\t');
    }
    QStringList stated;
    for (const DrawRisk &risk : draw.risks)
        stated += risk.side + u'\t' + risk.row;
    std::sort(risks.begin(), risks.end());
    std::sort(stated.begin(), stated.end());
    QCOMPARE(risks, stated);
    const model::Check check = book.check(draw.result);
    QVERIFY(!check.fails);
    QCOMPARE(QStringList(check.rows)
                 .replaceInStrings(u"|"_s, u"\t"_s)
                 .replaceInStrings(u" hot"_s, u""_s),
             draw.winners);
    QCOMPARE(model::baht(check.payout) + u' ' + model::baht(check.profit),
             draw.payout + u' ' + draw.profit);
}

void ModelTest::keyTicket(model::Book &book, const DrawTicket &stated)
{
    model::Ticket ticket;
    for (const DrawLine &line : stated.lines)
        QVERIFY2(ticket.key(line.kind, line.text) == line.refusal.isEmpty(), qPrintable(line.text));
    QStringList rows;
    for (const auto &bets : ticket.bets) {
        for (const model::Bet &bet : bets)
            rows += QString::fromUtf16(model::Classes[bet.betClass].caption) + u'\t' + bet.number
                    + u'\t' + model::baht(bet.amount);
    }
    QCOMPARE(rows, stated.rows);
    const QString &percent = book.customers[book.customer(stated.customer)].percent;
    const qint64 discount = model::discountOn(ticket.total(), percent.toInt());
    QCOMPARE(model::baht(ticket.total()) + u' ' + model::baht(discount),
             stated.total + u' ' + stated.discount);
    for (const model::Bet &bet : ticket.inOrderOfSaving())
        book.file(stated.customer, bet);
    book.addDiscount(discount);
}

void ModelTest::compareBoard(const model::Book &book, size_t betClass, const DrawBoard &stated)
{
    const model::Board board = book.board(betClass);
    QCOMPARE(QStringList({QString::fromUtf16(model::Classes[betClass].caption),
                          QString::number(board.rows.size()), board.total, board.estimate}),
             QStringList({stated.caption, stated.rows, stated.total, stated.estimate}));
    QStringList heavy = stated.heavy;
    heavy.replaceInStrings(u"\thot"_s, u" hot"_s).replaceInStrings(u"\t"_s, u"|"_s);
    QCOMPARE(board.rows.first(heavy.size()), heavy);
}

QTEST_GUILESS_MAIN(ModelTest)
#include "test_model.moc"
