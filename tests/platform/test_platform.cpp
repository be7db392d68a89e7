// SPDX-License-Identifier: MIT
// What the program asks of a desktop, as far as it stands without windows: grid contents, dates of
// the region, the program's folder and its end.
#include "platform/programend.h"
#include "platform/programfolder.h"
#include "platform/region.h"
#include "platform/spreadmodel.h"
#include "support/boxscript.h"
#include "support/outcome.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::StringLiterals;

class PlatformTest : public QObject
{
    Q_OBJECT

private slots:
    void gridKeepsItsRowsInOrder();
    void datesOfTheRegion_data();
    void datesOfTheRegion();
    void driveRootGetsNoSecondSlash();
    void unhandledErrorIsReportedThenAllIsClosed();
};

void PlatformTest::gridKeepsItsRowsInOrder()
{
    SpreadModel grid;
    const QAbstractItemModelTester tellsViewsTheTruth(
        &grid, QAbstractItemModelTester::FailureReportingMode::QtTest);
    grid.setup(2, 3);
    grid.setHeader(FirstHeaderRow + 1, 2, {u"รวม"_s});
    QCOMPARE(grid.text(-999, 2), u"รวม"_s);
    for (const auto &number : {u"12"_s, u"12"_s, u"012"_s, u"123"_s}) {
        grid.insertRow(1);
        grid.setText(1, 1, number);
    }
    QCOMPARE(grid.data(grid.index(1, 1), Qt::DisplayRole), u"012"_s); // a view counts from 0
    QCOMPARE(grid.searchColumn(1, u"12"_s), 3); // the first, and no part of another
    grid.removeRow(1);
    QCOMPARE(grid.text(1, 1), u"012"_s);
    grid.setRows(1);
    QCOMPARE(grid.searchColumn(1, u"12"_s), -1);
    grid.setup(2, 3);
    QCOMPARE(grid.rows(), 0);
    QCOMPARE(grid.text(-999, 2), QString());
}

void PlatformTest::datesOfTheRegion_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("shortForm");
    QTest::addColumn<QString>("longForm");
    QTest::newRow("a Thai region counts the Buddhist era")
        << u"th_TH"_s << u"22/11/2569"_s << u"วันอาทิตย์ที่ 22 พฤศจิกายน 2569"_s;
    QTest::newRow("British order")
        << u"en_GB"_s << u"22/11/2026"_s << u"Sunday, 22 November 2026"_s;
    QTest::newRow("American order, the year in full all the same")
        << u"en_US"_s << u"11/22/2026"_s << u"Sunday, November 22, 2026"_s;
}

void PlatformTest::datesOfTheRegion()
{
    QFETCH(QString, region);
    const QDate day(2026, 11, 22);
    QTEST(shortDate(day, QLocale(region)), "shortForm");
    QTEST(longDate(day, QLocale(region)), "longForm");
}

void PlatformTest::driveRootGetsNoSecondSlash()
{
    setProgramFolder(u"/srv/desk"_s);
    QCOMPARE(programFile(u"data/x"_s), u"/srv/desk/data/x"_s);
    setProgramFolder(u"/"_s);
    QCOMPARE(programFile(u"data/x"_s), u"/data/x"_s);
    setProgramFolder({});
}

void PlatformTest::unhandledErrorIsReportedThenAllIsClosed()
{
    const BoxScript script;
    QStringList closed;
    atProgramEnd([&] { closed += u"the first, after %1 box"_s.arg(script.boxes().size()); });
    atProgramEnd(raiseOverflow); // must not keep the others from closing
    atProgramEnd([&] { closed += u"the last"_s; });
    QCOMPARE(endStatus([] { endWithReport({RunTimeError::Overflow, u"Overflow"_s}); }), 1);
    QCOMPARE(closed, QStringList({u"the last"_s, u"the first, after 1 box"_s}));
    QCOMPARE(script.texts(), QStringList(u"Run-time error '6': Overflow"_s));
    QCOMPARE(script.boxes().first().style.icon, BoxIcon::Critical);
    QCOMPARE(script.boxes().first().title, u"Mirakla Desk"_s);
}

QTEST_GUILESS_MAIN(PlatformTest)
#include "test_platform.moc"
