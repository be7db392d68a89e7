// SPDX-License-Identifier: MIT
// Saving a ticket where a statement fails. What is saved otherwise is compared with the model.
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
    void failedStatementKeepsTheRowsBefore();
};

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
