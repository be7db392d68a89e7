// SPDX-License-Identifier: MIT
// The boards: whose bets they show, and money beyond what they can count. What stands on a number,
// halved or not, is asked by the law of the money.
#include "cutting/board.h"
#include "runtime/runtimeerror.h"
#include "shell/globals.h"
#include "support/gridrows.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QTest>

using namespace Qt::StringLiterals;

class BoardTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void filterTakesTheWholeName_data();
    void filterTakesTheWholeName();
    void buyersStandInThaiOrder();
    void sumBeyondALongAbandonsTheLoad();
    void lineWithoutMoneyStopsItsBoardAlone();

private:
    /// Files "number amount" lines of a class for a customer.
    void file(int betClass, const QString &lines, int customer = 1) const
    {
        const BetClass &into = BetClasses[size_t(betClass)];
        for (const QString &line : lines.split(u", "_s))
            m_ledger->run(
                u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy,"
                " nuser) VALUES (?, ?, ?, ?, ?, ?, 'sv')"_s,
                {customer, into.num23, into.updown, into.numType, line.section(u' ', 0, 0),
                 line.section(u' ', 1).toLongLong()});
    }
    void load(int at, bool filtered)
    {
        const BoardLines lines = filtered ? readCustomerBoards(m_board->FilterName)[size_t(at)]
                                          : readBoard(BetClasses[size_t(at)]);
        m_board->load(at, lines, HotNumbers(readHotNumbers()), m_progress);
    }
    QString shown(int at) const
    {
        return rowsOf(m_board->grids[size_t(at)], {NumberColumn, AmountColumn}).join(u", "_s);
    }

    std::optional<TestLedger> m_ledger;
    std::optional<Board> m_board;
    NoProgress m_progress;
};

void BoardTest::init()
{
    m_board.reset();
    m_ledger.reset();
    m_ledger.emplace();
    m_board.emplace();
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    LoadMoney();
}

void BoardTest::filterTakesTheWholeName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("rows");
    QTest::newRow("a customer") << u" สมชาย "_s << u"123|100"_s;
    QTest::newRow("two of one name, letters of any case") << u"somsri"_s << u"123|30, 456|5"_s;
    QTest::newRow("part of a name") << u"สมช"_s << QString();
    QTest::newRow("a wild card in the name") << u"สม%"_s << u"123|100, 789|1"_s;
    QTest::newRow("nobody") << u"' OR '1' = '1"_s << QString();
}

void BoardTest::filterTakesTheWholeName()
{
    const QStringList names{u"Somsri"_s, u"SOMSRI"_s, u"สมหญิง"_s};
    for (int key = 2; key <= 4; ++key)
        m_ledger->addMember(key, names[key - 2], u"0"_s);
    file(0, u"123 60, 123 40"_s, 1);
    file(0, u"123 30"_s, 2);
    file(0, u"456 5"_s, 3);
    file(0, u"789 1"_s, 4);
    QFETCH(QString, name);
    m_board->FilterName = name;
    load(0, true);
    QTEST(shown(0), "rows");
}

void BoardTest::buyersStandInThaiOrder()
{
    const QStringList names{u"เก่ง"_s, u"ขวัญ"_s, u"Bob"_s, u"bob"_s, u"กานดา"_s};
    for (int key = 2; key <= 6; ++key) {
        m_ledger->addMember(key, names[key - 2], u"0"_s);
        file(key % ClassCount, u"1 5, 2 5"_s, key);
    }
    QStringList buyers = readBuyers(); // the one without a bet is not there
    QCOMPARE(buyers.takeLast().toLower(), u"bob"_s);
    QCOMPARE(buyers, QStringList({u"กานดา"_s, u"เก่ง"_s, u"ขวัญ"_s}));
}

void BoardTest::sumBeyondALongAbandonsTheLoad()
{
    file(0, u"123 100"_s);
    load(0, false);
    file(0, u"124 2147483647, 125 5"_s);
    QCOMPARE(errorOf([this] { load(0, false); }), u"Run-time error '6': Overflow"_s);
    QCOMPARE(m_board->grids[0].text(-999, 2), u"0"_s);
    QCOMPARE(m_board->grids[0].rows(), 3);
    QCOMPARE(m_board->estimates[0], u"50,000"_s);
}

void BoardTest::lineWithoutMoneyStopsItsBoardAlone()
{
    file(0, u"123 100, 124 200"_s);
    file(4, u"5 70"_s);
    m_board->FilterName = u"สมชาย"_s;
    for (const bool filtered : {false, true}) {
        m_ledger->run(u"UPDATE tblNumber SET numBuy = 100 WHERE numValue = '123'"_s);
        load(0, filtered);
        QCOMPARE(shown(0), u"124|200, 123|100"_s);
        m_ledger->run(u"UPDATE tblNumber SET numBuy = NULL WHERE numValue = '123'"_s);
        QCOMPARE(errorOf([&] { load(0, filtered); }),
                 u"Run-time error '94': Invalid use of Null"_s);
        QCOMPARE(shown(0), u"124|200, |"_s);
        QCOMPARE(m_board->grids[0].text(-999, 2), u"0"_s);
        load(4, filtered);
        QCOMPARE(shown(4), u"5|70"_s);
    }
}

QTEST_GUILESS_MAIN(BoardTest)
#include "test_board.moc"
