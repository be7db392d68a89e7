// SPDX-License-Identifier: MIT
// Measures the voice of the entry page and the list of customers.
#include "book.h"
#include "figure.h"
#include "paintwatch.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QWindow>

namespace {

/// Splits the samples into hundreds and returns the median of their 99th percentiles, so that one
/// hundred disturbed by other work on the machine does not count.
Measured slowest(const Samples &samples)
{
    Samples slow;
    for (auto end = samples.begin() + 100; end <= samples.end(); end += 100)
        slow.push_back(quantile({end - 100, end}, 0.99));
    return {quantile(slow, 0.5), QString::asprintf("median of all %.1f", quantile(samples, 0.5))};
}

} // namespace

Measured measureVoice(benchmark::State &state, bool painted)
{
    qputenv("SDL_AUDIODRIVER", "dummy");
    const WorkFolder folder;
    const auto window = openProgram(0);
    auto *field = window->findChild<QLineEdit *>(QStringLiteral("Tnumber"));
    window->findChild<QCheckBox *>(QStringLiteral("C01"))->setChecked(true);
    Samples samples;
    for ([[maybe_unused]] auto round : state) {
        const PaintWatch watch(field);
        QElapsedTimer clock;
        clock.start();
        QTest::keyPress(window->windowHandle(), char('0' + samples.size() % 10));
        if (painted)
            watch.wait();
        samples.push_back(double(clock.nsecsElapsed()) / 1e6);
        state.SetIterationTime(samples.back() / 1000);
        QTest::keyRelease(window->windowHandle(), char('0' + (samples.size() - 1) % 10));
        if (samples.size() % 10 == 0)
            field->clear();
        QApplication::processEvents();
    }
    CloseLedger();
    return slowest(samples);
}

Measured measureCustomers(benchmark::State &state)
{
    const WorkFolder folder;
    const auto window = openProgram(1);
    folder.run(QStringLiteral("WITH RECURSIVE n(k) AS (SELECT 1 UNION ALL SELECT k + 1 FROM n "
                              "WHERE k < 5000) INSERT INTO tblMember (MPK, Mname) "
                              "SELECT k, 'สม' || (k * 7919 % 5000) || 'ใจดี' FROM n"));
    Samples samples;
    for ([[maybe_unused]] auto round : state) {
        QElapsedTimer clock;
        clock.start();
        QTest::keyClick(window->windowHandle(), Qt::Key_F5);
        QApplication::processEvents();
        samples.push_back(double(clock.nsecsElapsed()) / 1e6);
        state.SetIterationTime(samples.back() / 1000);
    }
    CloseLedger();
    return {quantile(samples, 0.5), QString::asprintf("slowest %.0f", quantile(samples, 1))};
}
