// SPDX-License-Identifier: MIT
// The viewers as a person uses them: pages turned by keys and buttons, pages sent to a printer.
#include "desktop/application.h"
#include "paper/printpages.h"
#include "paper/reportviewer.h"
#include "reports/cutnumbersreport.h"
#include "reports/fprint.h"
#include "reports/viewers.h"

#include "support/otherreaders.h"
#include "support/screens.h"

#include <QAction>
#include <QLabel>
#include <QPrinter>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<FPrint> viewerOf(int rows)
{
    const auto top = filledGrid(rows, 3, {3}, 2);
    const auto bottom = filledGrid(1, 3, {3}, 2);
    auto window = std::make_unique<FPrint>(u"Fprint3"_s,
                                           std::make_unique<ActiveReport3>(*top, *bottom), nullptr);
    window->show();
    if (!QTest::qWaitForWindowActive(window.get()))
        qFatal("the viewer does not get the keys");
    return window;
}

} // namespace

class ViewersTest : public QObject
{
    Q_OBJECT

private slots:
    void windowIsModalAndPlaced();
    void pagesAreTurned();
    void zoomKeepsThePlace();
    void resizingKeepsThePlace();
    void smallestZoomIsTheLastStep();
    void pageInSightIsDrawn();
    void printerGetsThePagesAskedFor_data();
    void printerGetsThePagesAskedFor();
};

void ViewersTest::windowIsModalAndPlaced()
{
    QStringList seen;
    QTimer::singleShot(0, this, [&] {
        QWidget *window = QApplication::activeModalWidget();
        const auto *viewer = window->findChild<ReportViewer *>(u"ARViewer21"_s);
        const QRect room = window->screen()->availableGeometry();
        const int left = window->x() - room.left();
        const int top = window->y() - room.top();
        seen = {window->windowTitle(), viewer->tool(2)->text()};
        seen += viewer->tool(0)->isVisible() ? u"with its first tool"_s : QString();
        seen += left == (room.width() - window->width()) / 2 ? u"centred"_s : u"aside"_s;
        seen += top == (room.height() - window->height()) / 3 ? u"a third down"_s : u"elsewhere"_s;
        QTest::keyClick(window, Qt::Key_Escape);
    });
    const auto grid = filledGrid(3, 7, {4, 5}, 2);
    showCutNumbers(*grid, *grid, nullptr);
    QCOMPARE(seen,
             QStringList({u"ปริ้นข้อมูล"_s, u"พิมพ์.."_s, QString(), u"centred"_s, u"a third down"_s}));
}

void ViewersTest::pagesAreTurned()
{
    const auto window = viewerOf(100); // four pages
    const auto *view = window->findChild<PageView *>();
    const auto *place = window->findChild<QLabel *>(u"place"_s);
    QCOMPARE(QApplication::focusWidget(), view);
    const auto after = [&](Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        return place->text();
    };
    QCOMPARE(place->text(), u"1 / 4"_s);
    QCOMPARE(after(Qt::Key_PageDown), u"2 / 4"_s);
    QCOMPARE(after(Qt::Key_End), u"4 / 4"_s);
    QCOMPARE(after(Qt::Key_PageDown), u"4 / 4"_s);
    QCOMPARE(after(Qt::Key_PageUp), u"3 / 4"_s);
    QCOMPARE(after(Qt::Key_Home), u"1 / 4"_s);
    for (const auto &[tool, shown] :
         {std::pair(u"next"_s, u"2 / 4"_s), std::pair(u"last"_s, u"4 / 4"_s),
          std::pair(u"previous"_s, u"3 / 4"_s), std::pair(u"first"_s, u"1 / 4"_s)}) {
        window->findChild<QAction *>(tool)->trigger();
        QCOMPARE(place->text(), shown);
    }
}

void ViewersTest::zoomKeepsThePlace()
{
    const auto window = viewerOf(200);
    auto *view = window->findChild<PageView *>();
    view->goToPage(5);
    const int fitting = view->shownPercent();
    for (const auto &tool : {u"zoomIn"_s, u"zoomOut"_s, u"zoomOut"_s, u"fitWidth"_s}) {
        const int before = view->shownPercent();
        window->findChild<QAction *>(tool)->trigger();
        QVERIFY(tool == u"zoomIn"_s ? view->shownPercent() > before
                                    : tool == u"fitWidth"_s || view->shownPercent() < before);
        QCOMPARE(view->page(), 5);
    }
    QCOMPARE(view->shownPercent(), fitting);
}

void ViewersTest::resizingKeepsThePlace()
{
    const auto window = viewerOf(400);
    auto *view = window->findChild<PageView *>();
    window->resize(500, 600);
    QApplication::processEvents();
    view->goToPage(8);
    for (const int width : {1100, 500}) {
        const int before = view->shownPercent();
        window->resize(width, 600);
        QApplication::processEvents();
        QVERIFY(view->shownPercent() != before); // the pages fit the width anew
        QCOMPARE(view->page(), 8);
    }
}

void ViewersTest::smallestZoomIsTheLastStep()
{
    const auto window = viewerOf(400);
    auto *view = window->findChild<PageView *>();
    for (int step = 0; step < 30; ++step)
        window->findChild<QAction *>(u"zoomOut"_s)->trigger();
    QCOMPARE(view->shownPercent(), int(PageView::Smallest)); // and not the width of the view
    view->goToPage(view->pageCount());                       // with several pages in sight
    QCOMPARE(view->page(), view->pageCount());
    QTest::keyClick(view, Qt::Key_PageUp);
    QVERIFY(view->page() < view->pageCount());
}

void ViewersTest::pageInSightIsDrawn()
{
    const auto window = viewerOf(60);
    auto *view = window->findChild<PageView *>();
    QImage first = view->viewport()->grab().toImage();
    view->goToPage(2);
    const QImage second = view->viewport()->grab().toImage();
    QVERIFY(first != second);
    int dark = 0;
    for (int y = 0; y < second.height(); ++y)
        dark += qGray(second.pixel(second.width() / 4, y)) < 128 ? 1 : 0; // through the numbers
    QVERIFY2(dark > 28, "a page without its rows and their rules");
    QVERIFY(qGray(second.pixel(second.width() / 2, 60)) > 250);
}

void ViewersTest::printerGetsThePagesAskedFor_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("backwards");
    QTest::addColumn<QStringList>("firstNumbers");
    QTest::newRow("all") << 0 << 0 << false << QStringList({u"001"_s, u"033"_s, u"065"_s});
    QTest::newRow("the second") << 2 << 2 << false << QStringList(u"033"_s);
    QTest::newRow("beyond the last") << 3 << 9 << false << QStringList(u"065"_s);
    QTest::newRow("backwards") << 2 << 3 << true << QStringList({u"065"_s, u"033"_s});
}

void ViewersTest::printerGetsThePagesAskedFor()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, backwards);
    const QTemporaryDir folder;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath(u"p.pdf"_s));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFromTo(from, to);
    printer.setPageOrder(backwards ? QPrinter::LastPageFirst : QPrinter::FirstPageFirst);
    const auto top = filledGrid(70, 3, {3}, 2);
    const auto bottom = filledGrid(0, 3, {3}, 2);
    QVERIFY(printPages(ActiveReport3(*top, *bottom).run(), printer));
    QFile file(printer.outputFileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList firstNumbers;
    bool headings = false;
    for (const QString &line : readPdf(file.readAll()).text) {
        if (headings)
            firstNumbers += line.section(u' ', 1, 1);
        headings = line.count(u' ') == 5; // a row of numbers stands next
    }
    QTEST(firstNumbers, "firstNumbers");
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // which no test could answer
    Application application(argc, argv);
    ViewersTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_viewers.moc"
