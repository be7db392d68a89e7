// SPDX-License-Identifier: MIT
#include "paper/printpages.h"

#include "desktop/dialogplace.h"
#include "desktop/msgbox.h"
#include "paper/pagepainter.h"

#include <QPageRanges>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void refusePrinting()
{
    refuse(u"พิมพ์ไม่สำเร็จ โปรดตรวจสอบเครื่องพิมพ์ . . ."_s);
}

/// Returns the pages to print, counted from 0, in print order. Pages are repeated for copies that
/// the printer cannot make.
QList<int> pagesToPrint(const ReportPages &report, const QPrinter &printer)
{
    const QPageRanges asked = printer.pageRanges();
    QList<int> pages;
    for (int page = 1; page <= int(report.pages.size()); ++page) {
        if (asked.isEmpty() || asked.contains(page))
            pages += page - 1;
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(pages.begin(), pages.end());
    const QList<int> once = pages;
    for (int copy = 1; !printer.supportsMultipleCopies() && copy < printer.copyCount(); ++copy)
        pages += once;
    return pages;
}

} // namespace

void printWithDialog(const ReportPages &report, QWidget *parent)
{
    QPrinter printer(QPrinter::HighResolution);
#ifdef Q_OS_WIN
    // Without a printer the Windows dialog would not open, and nothing would be reported.
    if (printer.outputFormat() != QPrinter::NativeFormat) {
        refusePrinting();
        return;
    }
#endif
    // Set one by one: a printer that cannot print up to the edge of the paper would reject a
    // QPageLayout without margins, and the orientation with it.
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(report.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setDocName(report.title);
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QPrintDialog::PrintPageRange);
    dialog.setMinMax(1, int(report.pages.size()));
    if (runDialog(dialog) == QDialog::Accepted && !printPages(report, printer))
        refusePrinting();
}

bool printPages(const ReportPages &report, QPrinter &printer)
{
    printer.setFullPage(true); // the margins are in the pages
    const QList<int> asked = pagesToPrint(report, printer);
    if (asked.isEmpty())
        return false;
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
    const double scale =
        std::min(paper.width() / report.paper().width(), paper.height() / report.paper().height());
    painter.scale(scale, scale);
    bool first = true;
    for (const int page : asked) {
        if (!first && !printer.newPage())
            return false;
        drawPage(painter, report.pages[page]);
        first = false;
    }
    return painter.end();
}
