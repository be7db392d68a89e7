// SPDX-License-Identifier: MIT
// The model of the trade against the draws of the tour, whose figures were worked out elsewhere.
#include "model/trade.h"

#include <QFile>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The lines of a draw file from here to the next of another kind.
QStringList linesOf(const QString &kind, const QList<QStringList> &file, qsizetype at)
{
    QStringList lines;
    for (; at < file.size() && file[at][0] == kind; ++at)
        lines += file[at].sliced(1).join(u'|');
    return lines;
}

QStringList ticketRows(const model::Ticket &ticket)
{
    QStringList rows;
    for (const auto &bets : ticket.bets) {
        for (const model::Bet &bet : bets)
            rows += QString::fromUtf16(model::Classes[bet.betClass].caption) + u'|' + bet.number
                    + u'|' + model::baht(bet.amount);
    }
    return rows;
}

QStringList risks(const model::Book &book)
{
    QStringList rows;
    for (const bool top : {true, false}) {
        for (const QString &row : book.scan(top)) {
            const QStringList cells = row.split(u'|');
            rows +=
                QStringList{top ? u"บน"_s : u"ล่าง"_s, cells[0], cells[1], cells[3].chopped(1)}.join(
                    u'|');
        }
    }
    return rows;
}

} // namespace

class ModelTest : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheDraw_data();
    void agreesWithTheDraw();
};

void ModelTest::agreesWithTheDraw_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("draw 0") << u"/draw0.txt"_s;
    QTest::newRow("draw 1") << u"/draw1.txt"_s;
}

void ModelTest::agreesWithTheDraw()
{
    QFETCH(QString, name);
    QFile text(QStringLiteral(TOUR_DRAWS) + name);
    QVERIFY(text.open(QIODevice::ReadOnly));
    QList<QStringList> file;
    for (const QString &line : QString::fromUtf8(text.readAll()).split(u'\n'))
        file += line.split(u'\t');
    model::Book book;
    model::Ticket ticket;
    QString customer;
    size_t boards = 0;
    model::Check check;
    for (qsizetype at = 0; at < file.size(); ++at) {
        const QString kind = file[at][0];
        const QStringList words = file[at].sliced(1);
        const auto stated = [&](const QString &of) { return linesOf(of, file, at + 1); };
        if (kind == u"member"_s) {
            book.customers[book.customer(words[0])] = {words[0], words[2], words[1]};
        } else if (kind == u"hot"_s) {
            book.hot += words[0];
        } else if (kind == u"ticket"_s) {
            customer = words[0];
            ticket = {};
        } else if (kind == u"line"_s) {
            QVERIFY2(ticket.key(words[0], words[1]) == (words.size() == 2), qPrintable(words[1]));
        } else if (kind == u"total"_s) {
            const QString &percent = book.customers[book.customer(customer)].percent;
            const qint64 discount = model::discountOn(ticket.total(), percent.toInt());
            QCOMPARE(QStringList({model::baht(ticket.total()), model::baht(discount)}), words);
            QCOMPARE(ticketRows(ticket), stated(u"row"_s));
            for (const model::Bet &bet : ticket.inOrderOfSaving())
                book.file(customer, bet);
            book.addDiscount(discount);
        } else if (kind == u"book"_s) {
            qint64 money = 0;
            qint64 discounts = 0;
            for (const auto &[key, line] : book.lines)
                money += line.amount;
            for (const auto &[key, amount] : book.discounts)
                discounts += amount;
            QCOMPARE(QStringList({QString::number(book.lines.size()), model::baht(money),
                                  model::baht(discounts)}),
                     words);
        } else if (kind == u"board"_s) {
            const QString caption = QString::fromUtf16(model::Classes[boards].caption);
            const model::Board board = book.board(boards++);
            QCOMPARE(QStringList({caption, QString::number(board.rows.size()), board.total,
                                  board.estimate}),
                     words);
            QStringList heavy;
            for (const QString &row : board.rows.first(std::min<qsizetype>(5, board.rows.size())))
                heavy += caption + u'|' + QString(row).replace(u" hot"_s, u"|hot"_s);
            QCOMPARE(heavy, stated(u"heavy"_s));
        } else if (kind == u"result"_s) {
            check = book.check(words[0]);
            QCOMPARE(QStringList(check.rows).replaceInStrings(u" hot"_s, u""_s), stated(u"win"_s));
        } else if (kind == u"settle"_s) {
            QCOMPARE(QStringList({model::baht(check.payout), model::baht(check.profit)}), words);
        } else if (kind == u"risk"_s && file[at - 1][0] != kind) {
            QStringList rows = risks(book);
            QStringList of = linesOf(kind, file, at);
            rows.sort();
            of.sort();
            QCOMPARE(rows, of);
        }
    }
    QCOMPARE(boards, model::Classes.size());
    QVERIFY(!check.fails && check.payout > 0);
}

QTEST_GUILESS_MAIN(ModelTest)
#include "test_model.moc"
