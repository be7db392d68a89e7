// SPDX-License-Identifier: MIT
// The draw check's logic: which lines win, what hot numbers leave of it, both amounts, and what is
// kept of them.
#include "desktop/clock.h"
#include "drawcheck/recount.h"
#include "drawcheck/settlement.h"
#include "ledger/ledger.h"
#include "shell/globals.h"
#include "support/gridrows.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QTest>

#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const QString Mismatch = u"Run-time error '13': Type mismatch"_s;
const QString Overflow = u"Run-time error '6': Overflow"_s;

/// The digits of a result written as one text of seventeen.
ResultDigits digitsOf(const QString &result)
{
    ResultDigits digits;
    for (int at = 0; at < DigitCount; ++at)
        digits[size_t(at)] = result.mid(at, 1);
    return digits;
}

/// A line of customer 1 as "class number stake", class 0 to 7 in the order of the boards.
void addLine(const TestLedger &ledger, const QString &line)
{
    const QStringList part = line.split(u' ');
    const BetClass &betClass = BetClasses[part[0].toUInt()];
    ledger.run(
        u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy, nuser)"
        " VALUES (?, ?, ?, ?, ?, ?, 'sv')"_s,
        {1, betClass.num23, betClass.updown, betClass.numType, part[1], part[2].toLongLong()});
}

} // namespace

class DrawCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void oddRowsAreTakenAsTheyStand();
    void settles_data();
    void settles();
    void failures_data();
    void failures();
    void missingResultRowFails();
    void agreesWithARecountByHand();

private:
    QString check(const QString &result, Book book = Book::Ours)
    {
        m_check.book = book;
        m_check.zeroAmounts();
        m_check.readDiscounts();
        return errorOf([&] { m_check.LoadnumberT(digitsOf(result), m_progress); });
    }
    QStringList winners() const
    {
        return rowsOf(m_check.winners, {1, 2, 3, 4, 5, 6, 7}, WinPayoutColumn);
    }
    QStringList kept() const { return m_ledger->run(u"SELECT * FROM tblTrue"_s); }

    std::unique_ptr<TestLedger> m_ledger;
    DrawCheck m_check;
    NoProgress m_progress;
};

void DrawCheckTest::init()
{
    setClock([] { return QDateTime({2026, 11, 22}, {9, 5}); });
    m_ledger = std::make_unique<TestLedger>();
    m_ledger->addMember(1, u"ก"_s, u"10"_s);
    LoadMoney();
}

void DrawCheckTest::cleanup()
{
    m_ledger.reset();
}

void DrawCheckTest::oddRowsAreTakenAsTheyStand()
{
    // A file that was mended by hand: a number with a stray letter, hot numbers of other lengths.
    for (const auto &line : {u"0 123x 1"_s, u"1 231 10"_s, u"3 12 1"_s})
        addLine(*m_ledger, line);
    m_ledger->run(u"INSERT INTO tblNumberFix (Fnumber) VALUES ('1234'), ('1'), (NULL), ('')"_s);
    QCOMPARE(check(u"12345678901234567"_s), QString());
    QCOMPARE(winners(),
             QStringList({u"ตรง-บน| 123x| 10|1|500| ก|0"_s, u"โต๊ด-บน| 12| 10|1|12| ก|0"_s,
                          u"โต๊ด-บน| 231| 10|10|500| ก|0 hot"_s}));
}

void DrawCheckTest::settles_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("discount");
    QTest::addColumn<Book>("book");
    QTest::addColumn<QString>("amounts");
    QTest::addColumn<QString>("stored");
    const QString result = u"1 123 456 789 012 345 67 2026-11-22 "_s;
    QTest::newRow("winners: discounts count for nothing")
        << QStringList({u"0 999 99940"_s, u"0 123 60"_s}) << u"5000"_s << Book::Ours
        << u"30,000 / 70,000"_s << result + u"70000 30000"_s;
    QTest::newRow("takings beyond 32 bits")
        << QStringList(u"0 999 9000000000"_s) << u"0"_s << Book::Ours << u"0 / 9,000,000,000"_s
        << result + u"9000000000 0"_s;
    QTest::newRow("nothing cut out wins: zeros are kept")
        << QStringList(u"0 123 60"_s) << u"0"_s << Book::CutOut << u"0 / 0"_s << result + u"0 0"_s;
}

void DrawCheckTest::settles()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, discount);
    QFETCH(Book, book);
    for (const QString &line : lines)
        addLine(*m_ledger, line);
    m_ledger->run(u"INSERT INTO tblRMoney (rMoney) VALUES (?)"_s, {discount});
    m_ledger->run(u"UPDATE tblTrue SET moneyup = 7, moneydown = 7"_s);
    QCOMPARE(check(u"12345678901234567"_s, book), QString());
    QTEST(QString(m_check.Label19 + u" / "_s + m_check.Label21), "amounts");
    QTEST(kept().join(u'\n'), "stored");
    QCOMPARE(m_ledger->run(u"SELECT typeof(moneyup), typeof(moneydown) FROM tblTrue"_s),
             QStringList(u"integer integer"_s));
}

void DrawCheckTest::failures_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("report");
    QTest::addColumn<QString>("paid");
    QTest::newRow("a rate of 0") << u"UPDATE tblMoney SET [3up] = 0"_s << u"0 123 5"_s << Mismatch
                                 << QString();
    QTest::newRow("a stake of 0") << QString() << u"0 123 0"_s << Mismatch << QString();
    QTest::newRow("takings eaten up by discounts")
        << u"INSERT INTO tblRMoney (rMoney) VALUES (5)"_s << u"0 123 5"_s << Mismatch << u"2,500"_s;
    QTest::newRow("a payout beyond 32 bits")
        << QString() << u"0 123 4294968"_s << Overflow << u"2,147,484,000"_s;
    QTest::newRow("halving one") << u"INSERT INTO tblNumberFix (Fnumber) VALUES ('123')"_s
                                 << u"0 123 4294968"_s << Overflow << u"2,147,484,000"_s;
}

void DrawCheckTest::failures()
{
    QFETCH(QString, before);
    QFETCH(QString, line);
    if (!before.isEmpty())
        m_ledger->run(before);
    LoadMoney();
    addLine(*m_ledger, line);
    const QStringList keptBefore = kept();
    QTEST(check(u"12345678901234567"_s), "report");
    QTEST(m_check.winners.text(1, WinPayoutColumn), "paid");
    QCOMPARE(kept(), keptBefore);
}

void DrawCheckTest::missingResultRowFails()
{
    m_ledger->run(u"DELETE FROM tblTrue"_s);
    QCOMPARE(check(u"12345678901234567"_s),
             u"Run-time error '-2147467259 (80004005)': no current row"_s);
    QCOMPARE(kept(), QStringList());
}

void DrawCheckTest::agreesWithARecountByHand()
{
    m_ledger->run(u"PRAGMA synchronous = OFF"_s); // nothing here has to outlive the test
    std::mt19937 dice(20261122);
    std::map<QString, int> met; // draws in which nothing happens would agree with anything
    for (int round = 0; round < 4000; ++round) {
        const RecountDraw draw = throwDraw(dice);
        fileDraw(draw, *m_ledger);
        LoadMoney();
        const RecountOutcome expected = recount(draw);
        const bool failed = !check(draw.result).isEmpty();
        QVERIFY2(failed == expected.fails, qPrintable(toText(draw)));
        ++met[failed ? u"failed"_s : expected.rows.isEmpty() ? u"lost"_s : u"won"_s];
        if (failed)
            continue;
        QString amounts =
            (expected.profit.isEmpty() ? u"0"_s : expected.profit) + u' ' + expected.payout;
        QCOMPARE(m_ledger->run(u"SELECT moneyup, moneydown FROM tblTrue"_s),
                 QStringList(amounts.remove(u',')));
        QVERIFY2(winners() == expected.rows, qPrintable(toText(draw)));
        QVERIFY2(m_check.Label19 == expected.payout && m_check.Label21 == expected.profit,
                 qPrintable(toText(draw)));
        met[u"halved"_s] += int(expected.rows.filter(u" hot"_s).size());
    }
    QVERIFY(met[u"won"_s] > 2000 && met[u"lost"_s] > 50 && met[u"failed"_s] > 50
            && met[u"halved"_s] > 1500);
}

QTEST_GUILESS_MAIN(DrawCheckTest)
#include "test_drawcheck.moc"
