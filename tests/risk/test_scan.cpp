// SPDX-License-Identifier: MIT
// The risk scan without windows: what the inspector reads of it, and a Ledger that fails.
#include "risk/inspection.h"
#include "risk/scan.h"
#include "shell/globals.h"
#include "support/gridrows.h"
#include "support/noprogress.h"
#include "support/testledger.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ScanTest : public QObject
{
    Q_OBJECT

private slots:
    void inspectionTakesTheRateOfTheClass();
    void failingLedgerIsPassedOver();

private:
    const TestLedger m_ledger;
};

void ScanTest::inspectionTakesTheRateOfTheClass()
{
    LoadMoney();
    RiskScan scan;
    scan.grid.setRows(1);
    scan.grid.setText(1, ScanColumn::Amount, u"1,000"_s);
    const auto lossOn = [&](const QString &type, const QString &number, quint8 origin) {
        CutOrigin = origin;
        scan.grid.setText(1, ScanColumn::Type, type);
        scan.grid.setText(1, ScanColumn::Number, number);
        return inspect(scan.grid, 1).loss.value_or(u"none"_s);
    };
    QCOMPARE(lossOn(u"โต๊ด"_s, u"012"_s, 2), u"100,000"_s);
    QCOMPARE(lossOn(u"วิ่ง"_s, u"5"_s, 2), u"3,000"_s);
    QCOMPARE(lossOn(u"วิ่ง"_s, u"5"_s, 3), u"4,000"_s);
    QCOMPARE(lossOn(u"ตรง"_s, u"12"_s, 3), u"none"_s); // the bottom scan has no such row
}

void ScanTest::failingLedgerIsPassedOver()
{
    m_ledger.run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy)"
                 " VALUES (1, 2, -1, 2, '12', 100), (1, 3, -1, 1, '120', 100)"_s);
    RiskScan scan;
    NoProgress progress;
    m_ledger.run(u"DROP TABLE tblNumberFix"_s);
    QVERIFY(scan.run(true, progress));
    QCOMPARE(rowsOf(scan.grid, {ScanColumn::Number, ScanColumn::Amount, ScanColumn::Risk}),
             QStringList(u"12|100|1%"_s));
    m_ledger.run(u"DROP TABLE tblNumber"_s);
    scan.run(true, progress);
    QCOMPARE(scan.grid.rows(), 0);
}

QTEST_GUILESS_MAIN(ScanTest)
#include "test_scan.moc"
