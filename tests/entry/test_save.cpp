// SPDX-License-Identifier: MIT
// Filing a ticket: which rows reach the Ledger, in which order, and under which spelling.
#include "entry/save.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void fileTod(const TestLedger &ledger, const QString &number, const QString &columns)
{
    ledger.run(u"INSERT INTO tblNumber (NameFK, updown, numType, num23, numBuy, numValue) "
               "VALUES (%1, 5, ?)"_s.arg(columns),
               {number});
}

} // namespace

class SaveTest : public QObject
{
    Q_OBJECT

private slots:
    void everyGridRowBecomesOneLine();
    void todTakesTheLowestSpellingOnFile_data();
    void todTakesTheLowestSpellingOnFile();
    void rowsOfOneTicketFindEachOther();
    void discountIsFiledAsANumber();
    void failedStatementKeepsTheRowsBefore();
};

void SaveTest::everyGridRowBecomesOneLine()
{
    const TestLedger ledger;
    ledger.addMember(4, u"สมชาย"_s, u"10"_s);
    ledger.run(u"INSERT INTO tblNumber (NPK) VALUES (7)"_s);
    Ticket ticket;
    for (int at = 0; at < ClassCount; ++at)
        ticket.writeLine(at, -1, QString::number(at) + u"12"_s.first(BetClasses[at].num23 - 1),
                         u"1050"_s);
    ticket.writeLine(0, -1, u"012"_s, u"5"_s);
    NoProgress progress;
    saveLines(ticket, u"สมชาย"_s, progress);
    // The tod grid of two digits goes before its straight one.
    QCOMPARE(ledger.run(u"SELECT NPK, NameFK, num23, updown, numType, numValue, numBuy, nuser, "
                        "typeof(numBuy) FROM tblNumber WHERE NPK > 7 ORDER BY NPK"_s),
             QStringList({u"8 4 3 -1 1 012 5 sv integer"_s, u"9 4 3 -1 1 012 1050 sv integer"_s,
                          u"10 4 3 -1 2 112 1050 sv integer"_s, u"11 4 2 -1 2 31 1050 sv integer"_s,
                          u"12 4 2 -1 1 21 1050 sv integer"_s, u"13 4 1 -1 3 4 1050 sv integer"_s,
                          u"14 4 3 0 1 512 1050 sv integer"_s, u"15 4 2 0 1 61 1050 sv integer"_s,
                          u"16 4 1 0 3 7 1050 sv integer"_s}));
}

void SaveTest::todTakesTheLowestSpellingOnFile_data()
{
    QTest::addColumn<QStringList>("onFile");
    QTest::addColumn<QString>("keyed");
    QTest::addColumn<QString>("filed");
    const QString tod3 = u"1, -1, 2, 3 "_s;
    const QString tod2 = u"1, -1, 2, 2 "_s;
    QTest::newRow("nothing on file") << QStringList() << u"123"_s << u"123"_s;
    QTest::newRow("another order") << QStringList(tod3 + u"321"_s) << u"123"_s << u"321"_s;
    QTest::newRow("the lowest of several")
        << QStringList({tod3 + u"312"_s, tod3 + u"213"_s}) << u"123"_s << u"213"_s;
    QTest::newRow("its own order counts for nothing beside another")
        << QStringList({tod3 + u"123"_s, tod3 + u"132"_s}) << u"123"_s << u"132"_s;
    QTest::newRow("a pair of digits finds itself")
        << QStringList({tod3 + u"112"_s, tod3 + u"211"_s}) << u"211"_s << u"112"_s;
    QTest::newRow("two digits turned") << QStringList(tod2 + u"21"_s) << u"12"_s << u"21"_s;
    QTest::newRow("zeros in front") << QStringList(tod3 + u"100"_s) << u"001"_s << u"100"_s;
    QTest::newRow("a straight line does not count")
        << QStringList(u"1, -1, 1, 3 321"_s) << u"123"_s << u"123"_s;
    QTest::newRow("nor the bottom") << QStringList(u"1, 0, 2, 3 321"_s) << u"123"_s << u"123"_s;
    QTest::newRow("nor a customer who is gone")
        << QStringList(u"9, -1, 2, 3 321"_s) << u"123"_s << u"123"_s;
}

void SaveTest::todTakesTheLowestSpellingOnFile()
{
    QFETCH(QStringList, onFile);
    QFETCH(QString, keyed);
    const TestLedger ledger;
    ledger.addMember(1, u"สมชาย"_s, u"0"_s);
    for (const QString &line : onFile)
        fileTod(ledger, line.section(u' ', -1), line.section(u' ', 0, -2));
    QTEST(todSpelling(keyed), "filed");
}

void SaveTest::rowsOfOneTicketFindEachOther()
{
    const TestLedger ledger;
    Ticket ticket;
    ticket.writeLine(1, -1, u"321"_s, u"5"_s);
    ticket.writeLine(1, -1, u"123"_s, u"5"_s); // now in row 1, written first
    NoProgress progress;
    saveLines(ticket, u"-"_s, progress);
    QCOMPARE(ledger.run(u"SELECT numValue FROM tblNumber ORDER BY NPK"_s),
             QStringList({u"123"_s, u"123"_s}));
}

void SaveTest::discountIsFiledAsANumber()
{
    const TestLedger ledger;
    saveDiscount({});
    saveDiscount(u"1,150"_s);
    saveDiscount(u"50"_s);
    QCOMPARE(ledger.run(u"SELECT count(*), sum(rMoney) FROM tblRMoney"_s),
             QStringList(u"2 1200"_s));
}

void SaveTest::failedStatementKeepsTheRowsBefore()
{
    const TestLedger ledger;
    ledger.run(u"CREATE TRIGGER full BEFORE INSERT ON tblNumber WHEN NEW.NPK = 3 "
               "BEGIN SELECT RAISE(ABORT, 'the disk is full'); END"_s);
    Ticket ticket;
    for (const auto &number : {u"12"_s, u"34"_s, u"56"_s})
        ticket.writeLine(2, -1, number, u"5"_s);
    NoProgress progress;
    QCOMPARE(errorOf([&] { saveLines(ticket, u"-"_s, progress); }),
             u"Run-time error '-2147467259 (80004005)': the disk is full"_s);
    QCOMPARE(ledger.run(u"SELECT numValue FROM tblNumber ORDER BY NPK"_s),
             QStringList({u"56"_s, u"34"_s}));
}

QTEST_GUILESS_MAIN(SaveTest)
#include "test_save.moc"
