// SPDX-License-Identifier: MIT
// What no script sees: ink on the paper, what other programs read in files of any length, and a disk
// that refuses a file.
#include "desktop/savefile.h"
#include "paper/pagepainter.h"
#include "paper/pageview.h"
#include "paper/pdfexport.h"
#include "paper/xlswriter.h"

#include "support/otherreaders.h"
#include "support/outcome.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::StringLiterals;

namespace {

PageItem itemOf(const QString &text, const TextStyle &style = {},
                ReportControl::Kind kind = ReportControl::Text)
{
    return {ReportSection::Detail, u"t"_s, {1000, 1000, 4000, 400}, kind, style, text};
}

/// A page at ten twips a pixel.
QImage drawn(const ReportPage &page)
{
    QImage paper(1190, 1684, QImage::Format_Grayscale8);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(0.1, 0.1);
    drawPage(painter, page);
    return paper;
}

QStringList readFile(const QByteArray &bytes)
{
    const QTemporaryDir folder;
    saveFile(folder.filePath(u"file"_s), bytes);
    return readByOthers(folder.filePath(u"file"_s));
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
    void inkStaysInItsControl_data();
    void inkStaysInItsControl();
    void rulingIsDrawnBesideTexts();
    void pageInSightIsDrawn();
    void sheetOfAnySizeIsRead_data();
    void sheetOfAnySizeIsRead();
    void documentKeepsEveryLetter();
    void failedSaveLeavesNothing();
};

void PaperTest::inkStaysInItsControl_data()
{
    QTest::addColumn<PageItem>("item");
    QTest::addColumn<int>("from"); // inked columns, in pixels
    QTest::addColumn<int>("to");
    const QString amount = QString(60, u'8') + u'1';
    QTest::newRow("short") << itemOf(u"H"_s, {12}) << 112 << 124;
    QTest::newRow("right") << itemOf(u"H"_s, {12, Qt::AlignRight}) << 474 << 486;
    QTest::newRow("centred") << itemOf(u"H"_s, {12, Qt::AlignHCenter}) << 293 << 305;
    QTest::newRow("clipped") << itemOf(QString(129, u'H'), {12}) << 112 << 499;
    QTest::newRow("narrowed") << itemOf(amount, {12, Qt::AlignRight, false, true}) << 110 << 487;
    QTest::newRow("rule") << itemOf({}, {}, ReportControl::Line) << 100 << 499;
    QTest::newRow("frame") << itemOf({}, {}, ReportControl::Frame) << 100 << 500;
}

void PaperTest::inkStaysInItsControl()
{
    QFETCH(PageItem, item);
    const QImage paper = drawn({{}, {item}});
    int first = paper.width();
    int last = -1;
    for (int x = 0; x < paper.width(); ++x) {
        for (int y = 0; y < paper.height(); ++y) {
            if (qGray(paper.pixel(x, y)) < 128) {
                first = std::min(first, x);
                last = x;
            }
        }
    }
    QFETCH(int, from);
    QFETCH(int, to);
    constexpr int Slack = 3; // between one release of a font and the next
    QVERIFY2(qAbs(first - from) <= Slack && qAbs(last - to) <= Slack,
             qPrintable(u"ink from %1 to %2"_s.arg(first).arg(last)));
}

void PaperTest::rulingIsDrawnBesideTexts()
{
    const QImage paper =
        drawn({{{1070, 3000, 1070, 500}}, {itemOf(u"H"_s, {.points = 12, .onWhite = true})}});
    QCOMPARE(qGray(paper.pixel(107, 120)), 255);
    QVERIFY(qGray(paper.pixel(107, 60)) < 200);
}

void PaperTest::pageInSightIsDrawn()
{
    PageView view;
    view.resize(900, 700);
    view.setReport({u"test"_s, false, {{{}, {itemOf(u"H"_s, {99})}}, {{}, {itemOf(u"H"_s)}}}});
    QList<int> dark;
    for (const int page : {1, 2}) {
        view.goToPage(page);
        const QImage shown = view.viewport()->grab(QRect(20, 20, 700, 600)).toImage();
        dark += 0;
        for (int x = 0; x < shown.width(); ++x) {
            for (int y = 0; y < shown.height(); ++y)
                dark.last() += qGray(shown.pixel(x, y)) < 128 ? 1 : 0;
        }
    }
    QVERIFY(dark[0] > 5 * dark[1] && dark[1] > 10);
}

void PaperTest::sheetOfAnySizeIsRead_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("letters");
    QTest::newRow("one row") << 1 << 3;
    QTest::newRow("texts that fill several records") << 2000 << 40;
    QTest::newRow("a text as long as can be") << 3 << 4000;
    // Beyond 7 MB the container needs a list of its tables outside its header.
    QTest::newRow("a container of many tables") << 32767 << 130;
}

void PaperTest::sheetOfAnySizeIsRead()
{
    QFETCH(int, rows);
    QFETCH(int, letters);
    Sheet sheet{u"s"_s, {1000, 1000, 1000}, {}, 0, false, 300};
    QStringList expected;
    for (int row = 0; row < rows; ++row) {
        const QString text = QString::number(row) + QString(letters, u'ก');
        sheet.cells += {row, 0, SheetCell::Text, text};
        sheet.cells += {row, 1, SheetCell::Amount, {}, double(row - 1)};
        sheet.cells += {row, 2, SheetCell::Text, u"a&<\U0001f600"_s};
        expected += u"%1: 1 \"%2\", 2 %3.00 #,##0, 3 \"a&<\U0001f600\""_s.arg(
            QString::number(row + 1), text.left(4000), QString::number(row - 1));
    }
    const QStringList read = readFile(xlsOf(sheet));
    QCOMPARE(read.first(), u"sheet \"s\""_s);
    QCOMPARE(read.last(rows), expected);
}

void PaperTest::documentKeepsEveryLetter()
{
    ReportPages report{u"test"_s, true, {{}}};
    QStringList expected{u"Title: test"_s, u"Page 1 size: 842 x 595 pts (A4)"_s,
                         u"Page 1 text up to 400,200"_s};
    int top = 300;
    for (const QString &text : {u"ผู้ กตัญญู น้ำใจ ที่นี่ ปั๊ม ศิริ กู้"_s, u"ฐูปฏู ป่า ฝ้าย ฟ้า เพื่อน กำลัง ขิ่ง"_s,
                                u"ลุงพิษณุ ศักดิ์สิทธิ์ เบ็ญจวรรณ ไพฑูรย์ ดุษฎี"_s, u"ก๋วยเตี๋ยว เจ๊หมวย ซุ้ม ตั้ม โต๊ด"_s,
                                u"012 1,234,567 -20,000 John <b>&amp;"_s}) {
        for (const bool bold : {false, true}) {
            PageItem item = itemOf(text, {11, Qt::AlignRight, bold});
            item.box = {300, top += 500, 9000, 400};
            report.pages[0].items += item;
            expected += u"1: "_s + text;
        }
    }
    QCOMPARE(readFile(pdfOf(report)), expected);
}

void PaperTest::failedSaveLeavesNothing()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.xls"_s);
    QVERIFY(saveFile(path, "old"));
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
