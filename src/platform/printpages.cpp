// SPDX-License-Identifier: MIT
#include "platform/printpages.h"

#include "platform/pagepainter.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace {

/// The pages asked for, counted from 0, in the order in which they leave the printer.
QList<int> pagesAskedFor(const ReportPages &report, const QPrinter &printer)
{
    const int last = int(report.pages.size());
    const int from = std::max(1, printer.fromPage());
    const int to = printer.toPage() > 0 ? std::min(printer.toPage(), last) : last;
    QList<int> pages;
    for (int page = from; page <= to; ++page)
        pages += page - 1;
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
    printer.setPageLayout({QPageSize(QPageSize::A4),
                           report.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                           QMarginsF()});
    printer.setDocName(report.title);
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QPrintDialog::PrintPageRange);
    dialog.setMinMax(1, int(report.pages.size()));
    if (dialog.exec() == QDialog::Accepted)
        printPages(report, printer);
}

bool printPages(const ReportPages &report, QPrinter &printer)
{
    printer.setFullPage(true); // the margins are in the pages
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
    const double scale =
        std::min(paper.width() / report.paper().width(), paper.height() / report.paper().height());
    painter.scale(scale, scale);
    bool first = true;
    for (const int page : pagesAskedFor(report, printer)) {
        if (!first && !printer.newPage())
            return false;
        drawPage(painter, report.pages[page]);
        first = false;
    }
    return painter.end();
}
