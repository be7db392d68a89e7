// SPDX-License-Identifier: MIT
// Pages, sheets and documents: what the page engine lays out, and what programs that others
// wrote read in the files.
#include "desktop/savefile.h"
#include "paper/pagepainter.h"
#include "paper/pdfexport.h"
#include "paper/report.h"
#include "paper/xlswriter.h"

#include "support/otherreaders.h"
#include "support/outcome.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int PaperHeight = 16838;

/// A report of as many rows as it is told, with a header of @p header twips and rows of @p row;
/// a label without a text makes its footer @p footer high.
class PlainReport : public Report
{
public:
    PlainReport(int rows, int header, int row, int footer)
        : Report({u"test"_s,
                  false,
                  {{ReportSection::PageHeader, u"title"_s, {0, 0, 900, header}},
                   {ReportSection::Detail, u"field"_s, {0, 0, 900, row - 20}},
                   {ReportSection::Detail, u"rule"_s, {0, row, 900, 0}, ReportControl::Line},
                   {ReportSection::PageFooter, u"end"_s, {0, 10, 900, footer - 10}}}}),
          m_rows(rows)
    {}

protected:
    void ActiveReport_Initialize() override { setText(u"title"_s, u"title"_s); }
    bool ActiveReport_FetchData() override { return ++m_row > m_rows; }
    void Detail_Format() override
    {
        setText(u"field"_s, m_row % 2 == 1 ? QString::number(m_row) : u" "_s);
        drawPageLine({5, 900, 5, 100});
    }

private:
    int m_rows;
    int m_row = 0;
};

ReportPages pageOf(const QString &text, const TextStyle &style = {})
{
    const QRect box(1000, 1000, 4000, 400);
    return {u"test"_s,
            false,
            {{{}, {{ReportSection::Detail, u"t"_s, box, ReportControl::Text, style, text}}}},
            {}};
}

/// Inked columns of a drawn page, in twips from the left: the first and the last.
QPair<int, int> inkOf(const ReportPages &report)
{
    QImage paper(report.paper() / 10, QImage::Format_Grayscale8);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(0.1, 0.1);
    drawPage(painter, report.pages[0]);
    painter.end();
    QPair<int, int> ink(-1, -1);
    for (int x = 0; x < paper.width(); ++x) {
        for (int y = 0; y < paper.height(); ++y) {
            if (qGray(paper.pixel(x, y)) < 128)
                ink = {ink.first < 0 ? x * 10 : ink.first, x * 10};
        }
    }
    return ink;
}

#ifndef Q_OS_WIN // which has no such limit to set
/// Runs @p statement on a disk that takes files of @p bytes and no more.
void withRoomFor(rlim_t bytes, const Statement &statement)
{
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit narrow{bytes, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
    setrlimit(RLIMIT_FSIZE, &narrow);
    statement();
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
}
#endif

} // namespace

class PaperTest : public QObject
{
    Q_OBJECT

private slots:
    void rowsBreakIntoPages_data();
    void rowsBreakIntoPages();
    void whatIsEmptyOrHiddenIsNotOnThePage();
    void longTextsStayInTheirControl();
    void sheetIsReadByAnotherProgram();
    void sheetOfAnySizeIsRead_data();
    void sheetOfAnySizeIsRead();
    void documentKeepsEveryLetter_data();
    void documentKeepsEveryLetter();
    void documentIsA4WithItsTypeInside();
    void failedSaveLeavesNothing();
};

void PaperTest::rowsBreakIntoPages_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("header");
    QTest::addColumn<int>("footer");
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("onLastPage");
    const int room = PaperHeight - 2 * PageMargin;
    QTest::newRow("nothing is one page all the same") << 0 << 500 << 10 << 1 << 0;
    QTest::newRow("one row") << 1 << 500 << 10 << 1 << 1;
    QTest::newRow("a page filled to the twip") << 10 << room - 4010 << 10 << 1 << 10;
    QTest::newRow("one twip too little") << 10 << room - 4009 << 10 << 2 << 1;
    QTest::newRow("an empty footer takes its room") << 10 << room - 4010 << 400 << 2 << 1;
    QTest::newRow("many pages") << 1000 << room - 9610 << 10 << 42 << 16;
}

void PaperTest::rowsBreakIntoPages()
{
    QFETCH(int, rows);
    QFETCH(int, header);
    QFETCH(int, footer);
    const ReportPages report = PlainReport(rows, header, 400, footer).run();
    QTEST(int(report.pages.size()), "pages");
    int rules = 0;
    for (const PageItem &item : report.pages.last().items)
        rules += item.name == u"rule"_s ? 1 : 0;
    QTEST(rules, "onLastPage");
    for (const ReportPage &page : report.pages) {
        QCOMPARE(page.items.first().name, u"title"_s);
        QCOMPARE(page.items.first().box.topLeft(), QPoint(PageMargin, PageMargin));
        QCOMPARE(page.ruling.size(), rows > 0 ? 1 : 0);
    }
}

void PaperTest::whatIsEmptyOrHiddenIsNotOnThePage()
{
    const ReportPages report = PlainReport(2, 500, 400, 300).run();
    QStringList names;
    for (const PageItem &item : report.pages[0].items)
        names += item.name + item.text;
    QCOMPARE(names, QStringList({u"titletitle"_s, u"field1"_s, u"rule"_s, u"rule"_s}));
    QCOMPARE(report.pages[0].items.last().box, QRect(300, 300 + 500 + 400 + 400, 900, 0));
}

void PaperTest::longTextsStayInTheirControl()
{
    const TextStyle clipped{12, Qt::AlignLeft};
    const TextStyle money{12, Qt::AlignRight, false, true};
    const auto cut = inkOf(pageOf(QString(129, u'W'), clipped));
    QVERIFY2(cut.first >= 1000 && cut.second < 5000, "a text runs out of its control");
    QVERIFY2(cut.second > 4900, "a text is cut before its control ends");
    const QString amount = QString(60, u'8') + u"1"_s;
    const auto narrowed = inkOf(pageOf(amount, money));
    QVERIFY2(narrowed.first > 1000 && narrowed.second < 5000, "an amount runs out of its control");
    const auto centred = inkOf(pageOf(u"8"_s, {12, Qt::AlignHCenter}));
    QVERIFY(qAbs(centred.first + centred.second - 6000) < 40);
}

void PaperTest::sheetIsReadByAnotherProgram()
{
    const QString thai = u"ผู้น้ำผึ้ง กตัญญู"_s;
    Sheet sheet{u"รายงาน"_s, {1000, 2000, 1500}, {}, 1, true, 300};
    sheet.cells = {
        {0, 0, SheetCell::Text, thai, 0, Qt::AlignLeft, true},
        {1, 0, SheetCell::Text, u"012"_s, 0, Qt::AlignHCenter},
        {1, 2, SheetCell::Amount, {}, -1234567, Qt::AlignRight},
        {2, 0, SheetCell::Text, thai},
        {2, 1, SheetCell::Text, u"a&<\U0001f600"_s},
        {2, 2, SheetCell::Amount, {}, 0},
    };
    const ReadSheet read = readXls(xlsOf(sheet));
    QCOMPARE(read.name, u"รายงาน"_s);
    QCOMPARE(read.rows,
             QList<QVariantList>(
                 {{thai, {}, {}}, {u"012"_s, {}, -1234567.0}, {thai, u"a&<\U0001f600"_s, 0.0}}));
}

void PaperTest::sheetOfAnySizeIsRead_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("letters");
    QTest::newRow("one cell") << 1 << 3;
    QTest::newRow("texts that fill several records") << 2000 << 40;
    QTest::newRow("a text as long as can be") << 3 << 4000;
    // Beyond 7 MB the container needs a list of its tables outside its header.
    QTest::newRow("a container of many tables") << 32767 << 130;
}

void PaperTest::sheetOfAnySizeIsRead()
{
    QFETCH(int, rows);
    QFETCH(int, letters);
    Sheet sheet{u"s"_s, {1000, 1000}, {}, 0, false, 300};
    for (int row = 0; row < rows; ++row) {
        const QString text = QString::number(row) + QString(letters, u'ก');
        sheet.cells += {row, 0, SheetCell::Text, text.left(letters)};
        sheet.cells += {row, 1, SheetCell::Amount, {}, double(row)};
    }
    const ReadSheet read = readXls(xlsOf(sheet));
    QCOMPARE(read.rows.size(), rows);
    for (int row = 0; row < rows; ++row) {
        QCOMPARE(read.rows[row][0], sheet.cells[2 * row].text);
        QCOMPARE(read.rows[row][1], double(row));
    }
}

void PaperTest::documentKeepsEveryLetter_data()
{
    QTest::addColumn<QString>("text");
    for (const QString &text : {u"ผู้ กตัญญู น้ำใจ ที่นี่ ปั๊ม ศิริ กู้"_s, u"ฐูปฏู ป่า ฝ้าย ฟ้า เพื่อน กำลัง ขิ่ง"_s,
                                u"ลุงพิษณุ ศักดิ์สิทธิ์ เบ็ญจวรรณ ไพฑูรย์ ดุษฎี"_s, u"ก๋วยเตี๋ยว เจ๊หมวย ซุ้ม ตั้ม โต๊ด"_s,
                                u"012 1,234,567 -20,000 John <b>&amp;"_s})
        QTest::newRow(qUtf8Printable(text)) << text;
}

void PaperTest::documentKeepsEveryLetter()
{
    QFETCH(QString, text);
    for (const bool bold : {false, true}) {
        ReportPages page = pageOf(text, {11, Qt::AlignLeft, bold});
        page.pages[0].items[0].box.setWidth(9000);
        QCOMPARE(readPdf(pdfOf(page)).text, QStringList(text));
    }
}

void PaperTest::documentIsA4WithItsTypeInside()
{
    ReportPages report = pageOf(u"ผู้ 012"_s);
    report.landscape = true;
    report.pages += report.pages[0];
    const ReadPdf read = readPdf(pdfOf(report));
    QCOMPARE(read.title, u"test"_s);
    QCOMPARE(read.pageSizes, QList<QSize>(2, QSize(842, 595)));
    QVERIFY(!read.fonts.isEmpty());
    for (const auto &[name, embedded] : read.fonts)
        QVERIFY2(embedded, qPrintable(name));
}

void PaperTest::failedSaveLeavesNothing()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.xls"_s);
    QVERIFY(saveFile(path, "old"));
    QVERIFY(!saveFile(folder.filePath(u"none/a.xls"_s), "x"));
#ifdef Q_OS_WIN // where the attribute forbids writing to a file, but not into a folder
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    QVERIFY(!saveFile(path, "x"));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
#else
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    withPlainRights([&] { QVERIFY(!saveFile(folder.filePath(u"b.xls"_s), "x")); });
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    withRoomFor(1000, [&] { QVERIFY(!saveFile(path, QByteArray(100000, 'x'))); });
#endif
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"a.xls"_s));
    QFile kept(path);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), "old");
}

QTEST_MAIN(PaperTest)
#include "test_paper.moc"
