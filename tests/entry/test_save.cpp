// SPDX-License-Identifier: MIT
// Filing a ticket: where a family of tods stands under several spellings, as the program itself never
// files it, and a failure half way. All else is asked by the law of the money.
#include "entry/save.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QTest>

using namespace Qt::StringLiterals;

class SaveTest : public QObject
{
    Q_OBJECT

private slots:
    void todTakesTheLowestSpellingOnFile_data();
    void todTakesTheLowestSpellingOnFile();
    void failedStatementKeepsTheRowsBefore();
};

void SaveTest::todTakesTheLowestSpellingOnFile_data()
{
    QTest::addColumn<QStringList>("onFile");
    QTest::addColumn<QString>("keyed");
    QTest::addColumn<QString>("filed");
    QTest::newRow("the lowest of several")
        << QStringList({u"1 312"_s, u"1 213"_s}) << u"123"_s << u"213"_s;
    QTest::newRow("its own order counts for nothing beside another")
        << QStringList({u"1 123"_s, u"1 132"_s}) << u"123"_s << u"132"_s;
    QTest::newRow("a pair of digits finds itself")
        << QStringList({u"1 112"_s, u"1 211"_s}) << u"211"_s << u"112"_s;
    QTest::newRow("a customer who is gone") << QStringList(u"9 321"_s) << u"123"_s << u"123"_s;
}

void SaveTest::todTakesTheLowestSpellingOnFile()
{
    QFETCH(QStringList, onFile);
    QFETCH(QString, keyed);
    const TestLedger ledger;
    ledger.addMember(1, u"สมชาย"_s, u"0"_s);
    for (const QString &line : onFile)
        ledger.run(u"INSERT INTO tblNumber (NameFK, updown, numType, num23, numBuy, numValue)"
                   " VALUES (?, -1, 2, 3, 5, ?)"_s,
                   {line.section(u' ', 0, 0).toInt(), line.section(u' ', 1)});
    QTEST(todSpelling(keyed), "filed");
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
