// SPDX-License-Identifier: MIT
// The history of closed draws: its order, its cells, and the deletion of one.
#include "desktop/region.h"
#include "history/drawlog.h"
#include "history/form5.h"
#include "ledger/ledger.h"
#include "support/formtest.h"

using namespace Qt::StringLiterals;

class HistoryTest : public FormTest
{
    Q_OBJECT

private slots:
    void newestDrawComesFirst();
    void cellsReadAsStored_data();
    void cellsReadAsStored();
    void oneDrawIsDeleted();

private:
    void prepare() override;
    void openPage()
    {
        show(std::make_unique<Form5>(m_progress, nullptr));
        m_grid = control<Spread>("fpSpread1");
    }
    void clickDelete() const { click("lvButtons_H1"); }

    Spread *m_grid = nullptr;
};

void HistoryTest::prepare()
{
    setMachineRegion(QLocale(u"th_TH"_s));
}

void HistoryTest::newestDrawComesFirst()
{
    // By the calendar, not by the text that is shown; of one day the draw closed last.
    m_ledger->run(u"INSERT INTO tblNumLog (numdate, num3up) VALUES ('2026-11-16', '001'),"
                  " ('2026-12-01', '002'), ('2027-01-02', '003'), ('2026-12-01', '004'),"
                  " ('', '005')"_s);
    openPage();
    QCOMPARE(column(LogTopColumn), QStringList({u"003"_s, u"004"_s, u"002"_s, u"001"_s, u"005"_s}));
    QCOMPARE(column(LogDateColumn), QStringList({u"2/1/2570"_s, u"1/12/2569"_s, u"1/12/2569"_s,
                                                 u"16/11/2569"_s, QString()}));
    QCOMPARE(column(0), QStringList({u"3"_s, u"4"_s, u"2"_s, u"1"_s, u"5"_s}));
}

void HistoryTest::cellsReadAsStored_data()
{
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("cells");
    QTest::newRow("a loss") << u"'012', '123', '456', '789', '012', '05', '', -4946754, 6676939"_s
                            << u"012|123  ,  456  ,  789  ,  012|05|6,676,939|-4,946,754|"_s;
    QTest::newRow("no payout") << u"'012', '1', '2', '3', '4', '05', '', 95000, 0"_s
                               << u"012|1  ,  2  ,  3  ,  4|05||95,000|"_s;
    QTest::newRow("never checked")
        << u"'', '', '', '', '', '', '', 0, 0"_s << u"|  ,    ,    ,  ||||"_s;
    QTest::newRow("nothing stored")
        << u"NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL"_s << u"|  ,    ,    ,  ||||"_s;
}

void HistoryTest::cellsReadAsStored()
{
    QFETCH(QString, values);
    m_ledger->run(u"INSERT INTO tblNumLog VALUES (1, "_s + values + u')');
    openPage();
    QStringList cells;
    for (int column = LogTopColumn; column <= 7; ++column)
        cells += m_grid->text(1, column);
    QTEST(cells.join(u'|'), "cells");
}

void HistoryTest::oneDrawIsDeleted()
{
    const QString question = u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[  งวดที่  ][  %1  ]"_s;
    openPage();
    clickDelete(); // nothing there, nothing said
    m_ledger->run(u"INSERT INTO tblNumLog (numdate) VALUES ('2026-11-16'), ('2026-12-01'),"
                  " ('2026-12-16')"_s);
    openPage();
    clickDelete(); // Enter answers Cancel
    QCOMPARE(m_hands->takeBoxes(), QStringList(question.arg(u"16/12/2569"_s)));
    m_grid->setActiveRow(3);
    m_hands->answerNextWithOk();
    clickDelete();
    QCOMPARE(m_hands->takeBoxes(),
             QStringList({question.arg(u"16/11/2569"_s), u"ทำการ ลบข้อมูล ออกจากระบบเรียบร้อยแล้ว."_s}));
    QCOMPARE(column(0), QStringList({u"3"_s, u"2"_s}));
    QCOMPARE(m_grid->activeRow(), 2);
    QCOMPARE(m_ledger->run(u"SELECT PK FROM tblNumLog"_s), QStringList({u"2"_s, u"3"_s}));
}

int main(int argc, char **argv)
{
    return runFormTest<HistoryTest>(argc, argv);
}
#include "test_history.moc"
