// SPDX-License-Identifier: MIT
// The draw check without windows: odd rows, amounts beyond 32 bits, failures.
#include "desktop/clock.h"
#include "drawcheck/settlement.h"
#include "ledger/ledger.h"
#include "shell/globals.h"
#include "support/gridrows.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QTest>

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
    void takingsMayLeave32Bits();
    void failures_data();
    void failures();
    void missingResultRowFails();

private:
    QString check(const QString &result)
    {
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

void DrawCheckTest::takingsMayLeave32Bits()
{
    addLine(*m_ledger, u"0 999 9000000000"_s);
    QCOMPARE(check(u"12345678901234567"_s), QString());
    QCOMPARE(m_check.Label21, u"9,000,000,000"_s);
    QCOMPARE(kept(), QStringList(u"1 123 456 789 012 345 67 2026-11-22 9000000000 0"_s));
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

QTEST_GUILESS_MAIN(DrawCheckTest)
#include "test_drawcheck.moc"
