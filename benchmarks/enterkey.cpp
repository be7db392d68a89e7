// SPDX-License-Identifier: MIT
// Measures the time from Enter in the entry field to the repainted grid.
#include "book.h"
#include "figure.h"
#include "paintwatch.h"

#include "widgets/combo.h"
#include "widgets/spread.h"

#include <QElapsedTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowCount = 500;

/// The whole program with 500 numbers in its grid "3 ตัวตรง", entered by key events.
class Desk
{
public:
    Desk() : m_window(openProgram(0))
    {
        auto *kinds = m_window->findChild<Combo *>(u"Combo2"_s);
        kinds->setListIndex(kinds->findText(u"- บน"_s));
        m_grid = m_window->findChild<Spread *>(u"fpSpread1"_s);
        for (int number = 0; number < RowCount; ++number)
            enter(number);
    }

    /// Types a line and returns the milliseconds from its Enter to the repainted grid.
    double enter(int number)
    {
        const QString line = QString::number(number).rightJustified(3, u'0') + u"-20"_s;
        for (const QChar key : line)
            QTest::keyClick(m_window->windowHandle(), key.toLatin1());
        PaintWatch watch(m_grid->viewport());
        QElapsedTimer clock;
        clock.start();
        QTest::keyPress(m_window->windowHandle(), Qt::Key_Return);
        watch.wait();
        const double taken = double(clock.nsecsElapsed()) / 1e6;
        QTest::keyRelease(m_window->windowHandle(), Qt::Key_Return);
        return taken;
    }

    SpreadModel &rows() { return *m_grid->spreadModel(); }

private:
    std::unique_ptr<MDIForm1> m_window;
    Spread *m_grid = nullptr;
};

} // namespace

Measured measureEnter(benchmark::State &state, int firstNumber)
{
    const WorkFolder folder;
    Desk desk;
    Samples samples;
    Samples slow; // the 99th percentile of each hundred
    for ([[maybe_unused]] auto round : state) {
        // Steps of 137 visit all 500 numbers, near and far rows mixed.
        samples.push_back(desk.enter(firstNumber + int(samples.size()) * 137 % RowCount));
        state.SetIterationTime(samples.back() / 1000);
        if (desk.rows().rows() > RowCount) // a new number, which was inserted on top
            desk.rows().removeRow(1);
        if (samples.size() % 100 == 0)
            slow.push_back(quantile({samples.end() - 100, samples.end()}, 0.99));
    }
    if (desk.rows().rows() != RowCount)
        qFatal("the grid does not have 500 rows");
    CloseLedger();
    // The median of the 99th percentiles, since other work on the machine may disturb a hundred.
    return {quantile(slow, 0.5), QString::asprintf("median of all %.1f", quantile(samples, 0.5))};
}
