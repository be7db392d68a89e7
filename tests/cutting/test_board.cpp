// SPDX-License-Identifier: MIT
// The boards: which money stands on a number, what half price does to it, in which order, for whom.
#include "cutting/board.h"
#include "runtime/runtimeerror.h"
#include "shell/globals.h"
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
    void numbersStandByTheirMoney_data();
    void numbersStandByTheirMoney();
    void filterTakesTheWholeName_data();
    void filterTakesTheWholeName();
    void buyersStandInThaiOrder();
    void sumBeyondALongAbandonsTheLoad();

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
    QString shown(int at) const
    {
        const SpreadModel &grid = m_board->grids[size_t(at)];
        QStringList rows;
        for (int row = 1; row <= grid.rows(); ++row) {
            const bool hot = grid.color(row, NumberColumn) == QColor(215, 159, 158);
            rows += grid.text(row, NumberColumn) + u' ' + grid.text(row, AmountColumn)
                    + (hot ? u"*"_s : QString());
        }
        return rows.join(u", "_s);
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

void BoardTest::numbersStandByTheirMoney_data()
{
    QTest::addColumn<int>("betClass");
    QTest::addColumn<QString>("hot");
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("total");
    QTest::addColumn<QString>("estimate");
    const auto row = [](const char *what, int betClass, const QString &hot, const QString &lines,
                        const QString &rows, const QString &total, const QString &estimate) {
        QTest::newRow(what) << betClass << hot << lines << rows << total << estimate;
    };
    row("summed, equal ones by number", 0, {}, u"321 50, 123 40, 012 50, 123 10, 900 1000"_s,
        u"900 1,000, 012 50, 123 50, 321 50"_s, u"1,150"_s, u"500,000"_s);
    row("a hot number goes down by half", 0, u"123"_s, u"123 300, 321 200, 111 150"_s,
        u"321 200, 123 150*, 111 150"_s, u"650"_s, u"100,000"_s);
    row("estimate of a hot head", 2, u"12"_s, u"12 100"_s, u"12 50*"_s, u"100"_s, u"3,500"_s);
    row("half a baht goes up", 5, u"123"_s, u"123 25"_s, u"123 13*"_s, u"25"_s, u"1,300"_s);
    row("a straight number is hot as it stands", 6, u"12 123"_s, u"21 100"_s, u"21 100"_s, u"100"_s,
        u"7,000"_s);
    row("tod in every order, once", 1, u"123 321 112"_s,
        u"123 100, 132 90, 213 80, 231 70, 312 60, 321 50, 121 40, 122 30"_s,
        u"123 50*, 132 45*, 213 40*, 231 35*, 312 30*, 122 30, 321 25*, 121 20*"_s, u"520"_s,
        u"5,000"_s);
    row("tod of two digits", 3, u"12 345"_s, u"21 100, 12 60, 34 20"_s, u"21 50*, 12 30*, 34 20"_s,
        u"180"_s, u"600"_s);
    row("a short hot number leaves long tods alone", 1, u"12"_s, u"123 100"_s, u"123 100"_s,
        u"100"_s, u"10,000"_s);
    row("a run is never hot", 4, u"5 55"_s, u"5 100"_s, u"5 100"_s, u"100"_s, u"300"_s);
    row("nothing", 7, u"12"_s, {}, {}, u"0"_s, u"0"_s);
}

void BoardTest::numbersStandByTheirMoney()
{
    QFETCH(int, betClass);
    QFETCH(QString, hot);
    QFETCH(QString, lines);
    for (const QString &number : hot.split(u' ', Qt::SkipEmptyParts))
        m_ledger->run(u"INSERT INTO tblNumberFix (Fnumber) VALUES (?)"_s, {number});
    for (int other = 0; other < ClassCount; ++other) // which must not show up
        file(other, u"9876543 1"_s.first(BetClasses[size_t(other)].num23) + u" 7"_s);
    m_ledger->run(u"DELETE FROM tblNumber WHERE NPK = ?"_s, {betClass + 1});
    if (!lines.isEmpty())
        file(betClass, lines);
    m_board->load(betClass, false, m_progress);
    m_board->takeTotal(betClass);
    QTEST(shown(betClass), "rows");
    QTEST(m_board->grids[size_t(betClass)].text(-999, 2), "total");
    QTEST(m_board->estimates[size_t(betClass)], "estimate");
}

void BoardTest::filterTakesTheWholeName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("rows");
    QTest::newRow("a customer") << u" สมชาย "_s << u"123 100"_s;
    QTest::newRow("two of one name, letters of any case") << u"somsri"_s << u"123 30, 456 5"_s;
    QTest::newRow("part of a name") << u"สมช"_s << QString();
    QTest::newRow("a wild card in the name") << u"สม%"_s << u"123 100, 789 1"_s;
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
    m_board->load(0, true, m_progress);
    QTEST(shown(0), "rows");
}

void BoardTest::buyersStandInThaiOrder()
{
    const QStringList names{u"เก่ง"_s, u"ขวัญ"_s, u"Bob"_s, u"bob"_s, u"กานดา"_s};
    for (int key = 2; key <= 6; ++key) {
        m_ledger->addMember(key, names[key - 2], u"0"_s);
        file(key % ClassCount, u"1 5, 2 5"_s, key);
    }
    QStringList buyers = Buyers().names(); // the one without a bet is not there
    QCOMPARE(buyers.takeLast().toLower(), u"bob"_s);
    QCOMPARE(buyers, QStringList({u"กานดา"_s, u"เก่ง"_s, u"ขวัญ"_s}));
}

void BoardTest::sumBeyondALongAbandonsTheLoad()
{
    file(0, u"123 100"_s);
    m_board->load(0, false, m_progress);
    file(0, u"124 2147483647, 125 5"_s);
    QCOMPARE(errorOf([this] { m_board->load(0, false, m_progress); }),
             u"Run-time error '6': Overflow"_s);
    QCOMPARE(m_board->grids[0].text(-999, 2), u"0"_s);
    QCOMPARE(m_board->grids[0].rows(), 3);
    QCOMPARE(m_board->estimates[0], u"50,000"_s);
}

QTEST_GUILESS_MAIN(BoardTest)
#include "test_board.moc"
