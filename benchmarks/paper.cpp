// SPDX-License-Identifier: MIT
// Measures the statement of a full book: as pages, on screen and in files.
#include "figure.h"
#include "paintwatch.h"
#include "screens.h"

#include "paper/pdfexport.h"
#include "paper/reportviewer.h"
#include "paper/sheetofpages.h"
#include "reports/fprint.h"
#include "reports/statementreport.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

/// Returns boards with every number of every class.
const Boards &fullBook()
{
    static const Boards boards({1000, 210, 100, 45, 10, 1000, 100, 10});
    return boards;
}

std::unique_ptr<ActiveReport2> statement()
{
    const auto caption = [](int) { return u"   บน ( ยอดรวม 1,234,567 )"_s; };
    return std::make_unique<ActiveReport2>(
        BoardsOnScreen{fullBook().all(), caption, u"เจ๊หมวย"_s, u"150"_s});
}

/// Returns the median milliseconds of @p work, with the text that it returns as detail.
template<typename Work>
Measured median(benchmark::State &state, Work work)
{
    Samples samples;
    QString detail;
    for ([[maybe_unused]] auto round : state) {
        QElapsedTimer clock;
        clock.start();
        detail = work();
        samples.push_back(double(clock.nsecsElapsed()) / 1e6);
        state.SetIterationTime(samples.back() / 1000);
    }
    return {quantile(samples, 0.5), detail};
}

} // namespace

Measured measureStatement(benchmark::State &state)
{
    return median(state, [] { return u"%1 pages"_s.arg(statement()->run().pages.size()); });
}

Measured measureFirstPage(benchmark::State &state)
{
    return median(state, [] {
        FPrint window(u"Fprint2"_s, statement(), nullptr);
        const PaintWatch watch(window.findChild<PageView *>()->viewport());
        window.show();
        watch.wait();
        return QString();
    });
}

Measured measureSheet(benchmark::State &state)
{
    const ReportPages report = statement()->run();
    return median(state, [&] { return u"%1 kB"_s.arg(xlsOf(sheetOf(report)).size() / 1000); });
}

Measured measureDocument(benchmark::State &state)
{
    const ReportPages report = statement()->run();
    double kilobytes = 0;
    const Measured time = median(state, [&] {
        kilobytes = double(pdfOf(report).size()) / 1000;
        return QString();
    });
    return {kilobytes, u"written in %1 ms"_s.arg(time.value, 0, 'f', 0)};
}
