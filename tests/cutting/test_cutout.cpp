// SPDX-License-Identifier: MIT
// Cuts of lines that have vanished meanwhile; what was cut is listed by number. That a cut neither loses
// nor makes money is asked elsewhere, of whole books.
#include "cutting/cutboard.h"
#include "cutting/cutout.h"
#include "cutting/selection.h"
#include "runtime/runtimeerror.h"
#include "support/gridrows.h"
#include "support/noprogress.h"
#include "support/outcome.h"
#include "support/testledger.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void select(int num23, int numType, bool updown, const QString &number)
{
    SelNum23 = quint8(num23);
    SelNumType = quint8(numType);
    SelUpDown = updown;
    SelNumValue = number;
}

} // namespace

class CutOutTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void vanishedLine();
    void cutNumbersAreListedByKind();

private:
    void file(const QString &table, const QString &values) const
    {
        m_ledger->run(u"INSERT INTO %1 (NameFK, num23, updown, numType, numValue, numBuy, nuser) "
                      "VALUES (%2, 'sv')"_s.arg(table, values));
    }
    QStringList book(const QString &table) const
    {
        return m_ledger->run(
            u"SELECT NPK, NameFK, num23, updown, numType, numValue, numBuy, nuser, "
            "typeof(numBuy) FROM "_s
            + table + u" ORDER BY NPK"_s);
    }

    std::optional<TestLedger> m_ledger;
};

void CutOutTest::init()
{
    m_ledger.reset();
    m_ledger.emplace();
    m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
    m_ledger->addMember(2, u"สมหญิง"_s, u"0"_s);
}

void CutOutTest::vanishedLine()
{
    file(u"tblNumber"_s, u"2, 1, 0, 3, '5', 500"_s);
    select(1, 3, false, u"5"_s);
    CutOut cutOut;
    cutOut.LoadNumrunup();
    const CutLine line = cutOut.lineAt(1);
    m_ledger->run(u"UPDATE tblNumber SET nuser = 'xx'"_s); // key and user have to agree
    QVERIFY(!errorOf([&] { cutOut.cut(line, 200); }).isEmpty());
    QCOMPARE(book(u"tblNumberCut"_s), QStringList());
    cutOut.cut(line, 500);
    QCOMPARE(book(u"tblNumber"_s).size(), 1);
    QCOMPARE(book(u"tblNumberCut"_s).size(), 1);
}

void CutOutTest::cutNumbersAreListedByKind()
{
    for (const auto &line :
         {u"1, 1, -1, 3, '5', 7"_s, u"1, 2, -1, 1, '12', 10"_s, u"2, 3, -1, 1, '512', 20"_s,
          u"1, 3, -1, 1, '012', 1000"_s, u"2, 3, -1, 1, '012', 500"_s, u"1, 3, -1, 2, '012', 5"_s})
        file(u"tblNumberCut"_s, line);
    m_ledger->run(u"INSERT INTO tblNumberFix VALUES (1, '012')"_s); // real money all the same
    CutBoard board;
    NoProgress progress;
    board.LoadNumcutup(progress);
    board.LoadNumcutdown(progress);
    QCOMPARE(rowsOf(board.grids[0], {1, 2, 3}),
             QStringList({u"ตรง|012|1,500"_s, u"ตรง|512|20"_s, u"ตรง|12|10"_s, u"โต๊ด|012|5"_s,
                          u"วิ่ง|5|7"_s}));
    QCOMPARE(board.grids[0].text(-999, 2), u"1,542"_s);
    QCOMPARE(board.grids[1].text(-999, 2), u"0"_s);
}

QTEST_GUILESS_MAIN(CutOutTest)
#include "test_cutout.moc"
