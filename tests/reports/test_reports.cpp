// SPDX-License-Identifier: MIT
// The three reports, from the grids on screen to pages and files: what stands where, what is left
// away, and under which name a file is saved.
#include "desktop/clock.h"
#include "desktop/region.h"
#include "desktop/savefile.h"
#include "paper/pdfexport.h"
#include "paper/sheetofpages.h"
#include "reports/cutnumbersreport.h"
#include "reports/export.h"
#include "reports/statementreport.h"
#include "reports/winnersreport.h"

#include "support/boxscript.h"
#include "support/otherreaders.h"
#include "support/outcome.h"
#include "support/screens.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Winners, CutWinners, Statement, CutNumbers };

std::unique_ptr<SpreadModel> winners(int rows)
{
    return filledGrid(rows, 7, {4, 5}, 2);
}

std::unique_ptr<SpreadModel> cutNumbers(int rows)
{
    return filledGrid(rows, 3, {3}, 2);
}

ReportPages statementOf(const Boards &boards, const QString &customer = {})
{
    const auto selectTab = [](int tab) { return u"   แทบ %1"_s.arg(tab); };
    return ActiveReport2({boards.all(), selectTab, customer, u"150"_s}).run();
}

ReportPages pagesOf(Kind kind, int rows)
{
    if (kind == Kind::Statement)
        return statementOf(Boards({5, 5, 5, 5, 5, 5, rows, 5}));
    if (kind == Kind::CutNumbers)
        return ActiveReport3(*cutNumbers(3), *cutNumbers(rows)).run();
    const auto grid = winners(rows);
    return ActiveReport1({*grid, u"1,234,567"_s, kind == Kind::CutWinners}).run();
}

/// The @p count-th item of that name on a page, from 1; an empty one if there is none.
PageItem itemOf(const ReportPage &page, const QString &name, int count = 1)
{
    for (const PageItem &item : page.items) {
        if (item.name == name && --count == 0)
            return item;
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(Kind)

class ReportsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fieldsSayWhatTheScreenSays_data();
    void fieldsSayWhatTheScreenSays();
    void nothingIsDrawnBesideThePaper();
    void statementTellsWhoseItIs();
    void gridTooLongForTheCounter();
    void sheetCanBeAddedUp();
    void documentHoldsEveryAmount();
    void fileNames_data();
    void fileNames();
    void existingFileIsAskedAbout();
};

void ReportsTest::initTestCase()
{
    setMachineRegion(QLocale(u"th_TH"_s));
    setClock([] { return QDateTime({2026, 11, 5}, {14, 7, 9}); });
}

void ReportsTest::fieldsSayWhatTheScreenSays_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    const auto row = [](Kind kind, const char16_t *name, int count, const QString &text) {
        const QString label = QString::number(int(kind)) + QString::fromUtf16(name);
        QTest::newRow(qUtf8Printable(label)) << kind << QString::fromUtf16(name) << count << text;
    };
    const QString date = u"( วันพฤหัสบดีที่ 5 พฤศจิกายน 2569 )"_s;
    row(Kind::Winners, u"Label4", 1, u"รายชื่อผู้ที่ถูกงวดที่    "_s + date);
    row(Kind::Winners, u"Label10", 1, u"รวมเสีย    1,234,567  บาท"_s);
    row(Kind::Winners, u"text2", 1, u"001"_s);
    row(Kind::Winners, u"text3", 1, u" 1,400"_s);
    row(Kind::Winners, u"text4", 3, u" 3,500"_s);
    row(Kind::Winners, u"text5", 1, u"1.6"_s);
    row(Kind::Winners, u"text6", 1, u"1.7"_s);
    row(Kind::CutWinners, u"Label4", 1, u"( เลขที่ถูกคัดออก ) รายชื่อผู้ที่ถูกงวดที่    "_s + date);
    row(Kind::CutWinners, u"Label10", 1, {}); // no total of what was laid off
    row(Kind::Statement, u"Label43", 1, u"[บน]  งวดที่    "_s + date);
    row(Kind::Statement, u"Label44", 1, u"เลข   แทบ 1"_s);
    row(Kind::Statement, u"Label45", 1, u"เลข   แทบ 0"_s);
    row(Kind::Statement, u"Label42", 1, u"1,234"_s);
    row(Kind::Statement, u"text13", 2, u"002"_s);
    row(Kind::Statement, u"text14", 2, u" 2,200"_s);
    row(Kind::CutNumbers, u"Label4", 1, u"งวดที่    "_s + date);
    row(Kind::CutNumbers, u"Label11", 1, u"ล่าง ( ยอดรวม 1,234 บาท )"_s);
    row(Kind::CutNumbers, u"text3", 2, u" 2,300"_s);
    row(Kind::CutNumbers, u"text5", 4, u"004"_s);
    row(Kind::CutNumbers, u"text2", 4, {}); // the top grid has three rows
}

void ReportsTest::fieldsSayWhatTheScreenSays()
{
    QFETCH(Kind, kind);
    QFETCH(QString, name);
    QFETCH(int, count);
    QTEST(itemOf(pagesOf(kind, 10).pages[0], name, count).text, "text");
}

void ReportsTest::nothingIsDrawnBesideThePaper()
{
    for (const Kind kind : {Kind::Winners, Kind::Statement, Kind::CutNumbers}) {
        const ReportPages report = pagesOf(kind, 100);
        const QRect paper({0, 0}, report.paper());
        for (const ReportPage &page : report.pages) {
            for (const PageItem &item : page.items)
                QVERIFY2(paper.contains(item.box.topLeft())
                             && item.box.left() + item.box.width() <= paper.width() - 200
                             && item.box.top() + item.box.height() <= paper.height() - PageMargin,
                         qPrintable(item.name));
            for (const QLine &line : page.ruling)
                QVERIFY(paper.contains(line.p1()) && line.x1() == line.x2() && line.y2() == 1000);
            QCOMPARE(page.ruling.first().x1(), PageMargin);
        }
    }
}

void ReportsTest::statementTellsWhoseItIs()
{
    const Boards boards({30, 5, 5, 5, 5, 5, 5, 5});
    const ReportPages wholeBook = statementOf(boards);
    for (const ReportPage &page : wholeBook.pages)
        QVERIFY(itemOf(page, u"Label47"_s).name.isEmpty());
    const ReportPages report = statementOf(boards, u"เจ๊หมวย"_s);
    QCOMPARE(report.pages.size(), 2);
    for (const ReportPage &page : report.pages) {
        const PageItem owner = itemOf(page, u"Label47"_s);
        QCOMPARE(owner.text, u"ข้อมูลนี้เป็นของลูกค้าชื่อ :  เจ๊หมวย  /  ยอดส่วนลดรวม = 150  บาท"_s);
        QCOMPARE(owner.box, QRect(3560, 11906 - 300 - 283, 12756, 283));
    }
}

void ReportsTest::gridTooLongForTheCounter()
{
    QCOMPARE(pagesOf(Kind::Winners, 32766).pages.size(), 800); // of 41 rows
    QCOMPARE(errorOf([] { pagesOf(Kind::Winners, 32768); }), u"Run-time error '6': Overflow"_s);
}

void ReportsTest::sheetCanBeAddedUp()
{
    const ReadSheet sheet =
        readXls(xlsOf(sheetOf(statementOf(Boards({30, 1, 0, 0, 0, 0, 0, 2}), u"ก"_s))));
    QCOMPARE(sheet.rows.size(), 5 + 30 + 1); // the page header once, and the footer
    QCOMPARE(sheet.rows[0][10], u"[ล่าง]"_s);
    QCOMPARE(sheet.rows[0][15], u"เลข   แทบ 0"_s);
    QCOMPARE(sheet.rows[3][1], 1234.0);
    QCOMPARE(sheet.rows[5].mid(0, 6), QVariantList({u"001"_s, 1200.0, u"001"_s, 1200.0, {}, {}}));
    QCOMPARE(sheet.rows[34].mid(0, 4), QVariantList({u"030"_s, 30200.0, {}, {}}));
    double sum = 0;
    for (int row = 5; row < 35; ++row)
        sum += sheet.rows[row][1].toDouble();
    QCOMPARE(sum, 471000.0);
}

void ReportsTest::documentHoldsEveryAmount()
{
    const ReportPages report =
        statementOf(Boards({1000, 30, 0, 0, 0, 0, 1000, 0}), QString(129, u'ก'));
    const QByteArray file = pdfOf(report);
    QVERIFY2(file.size() < 1000000, "a statement too big to be sent");
    const ReadPdf read = readPdf(file);
    QCOMPARE(read.pageSizes, QList<QSize>(42, QSize(842, 595)));
    QVERIFY(read.text.contains(u"030 30,200 030 30,200 030 30,200"_s));
    QVERIFY(read.text.contains(u"1000 1000,200 1000 1000,200"_s));
    QVERIFY(read.text.last().endsWith(u"/ ยอดส่วนลดรวม = 150 บาท"_s));
}

void ReportsTest::fileNames_data()
{
    QTest::addColumn<ExportFormat>("format");
    QTest::addColumn<QString>("picked");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("Cancel") << ExportFormat::Excel << QString() << QStringList();
    QTest::newRow("sheet") << ExportFormat::Excel << u"a"_s << QStringList(u"a.xls"_s);
    QTest::newRow("a name that ends so already")
        << ExportFormat::Excel << u"a.xls"_s << QStringList(u"a.xls.xls"_s);
    QTest::newRow("document") << ExportFormat::Pdf << u"งวด 1"_s << QStringList(u"งวด 1.pdf"_s);
    QTest::newRow("no such folder") << ExportFormat::Pdf << u"no/a"_s << QStringList();
}

void ReportsTest::fileNames()
{
    QFETCH(ExportFormat, format);
    QFETCH(QString, picked);
    const BoxScript script;
    const QTemporaryDir folder;
    QList<SaveRequest> asked;
    const SaveDialog before = setSaveDialog([&](const SaveRequest &request) {
        asked += request;
        return picked.isEmpty() ? QString() : folder.filePath(picked);
    });
    exportReport(format, pagesOf(Kind::Winners, 1));
    setSaveDialog(before);
    const bool excel = format == ExportFormat::Excel;
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked[0].preset, u"05-11-26-14-07-09"_s);
    QCOMPARE(asked[0].extension, excel ? u".xls"_s : u".PDF"_s);
    QCOMPARE(asked[0].title, u"เลือกตำแหน่งบันทึก "_s + (excel ? u"Excel"_s : u"PDF"_s));
    QTEST(QDir(folder.path()).entryList(QDir::Files), "files");
    QVERIFY(script.boxes().isEmpty());
}

void ReportsTest::existingFileIsAskedAbout()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.pdf"_s);
    const SaveDialog before = setSaveDialog([&](const SaveRequest &) { return path.chopped(4); });
    saveFile(path, "old");
    for (const bool agreed : {false, true}) {
        const BoxScript script({agreed ? BoxAnswer::Ok : BoxAnswer::Cancel});
        exportReport(ExportFormat::Pdf, pagesOf(Kind::CutNumbers, 1));
        QCOMPARE(script.boxes().size(), 1);
        QVERIFY(script.texts().first().endsWith(QDir::toNativeSeparators(path)));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.read(4), agreed ? QByteArray("%PDF") : QByteArray("old"));
    }
    setSaveDialog(before);
}

QTEST_MAIN(ReportsTest)
#include "test_reports.moc"
