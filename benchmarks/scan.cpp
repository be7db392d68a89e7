// SPDX-License-Identifier: MIT
// Measures the top scan on a full book, with bets on every number on top.
#include "book.h"
#include "figure.h"

#include "cutting/board.h"
#include "risk/vikoc.h"
#include "widgets/spread.h"

#include <QElapsedTimer>

#include <span>

namespace {

constexpr int LineCount = 1'000'000;

constexpr const char *GroupedStatement =
    "SELECT num23, updown, numType, numValue, Sum(numBuy) FROM tblNumber WHERE updown = -1"
    " GROUP BY num23, updown, numType, numValue";

/// Returns true for one spelling of each tod bet, the one with ascending digits. Numbers whose
/// digits are all equal are not tod bets.
bool isTodSpelling(const QByteArray &number)
{
    return std::is_sorted(number.begin(), number.end()) && number.front() != number.back();
}

/// Returns every number that can be bet on top: 1,000 + 210 + 100 + 45 + 10.
std::vector<BetLine> allTopNumbers()
{
    std::vector<BetLine> lines;
    for (const BetClass &betClass : std::span(BetClasses).first<TopClassCount>()) {
        const int end = betClass.num23 == 3 ? 1000 : betClass.num23 == 2 ? 100 : 10;
        for (int value = 0; value < end; ++value) {
            const QByteArray number = QByteArray::number(1000 + value).right(betClass.num23);
            if (betClass.numType != Tod || isTodSpelling(number))
                lines.push_back({&betClass, 1, number});
        }
    }
    return lines;
}

/// Returns LineCount lines that repeat all numbers in turn.
std::vector<BetLine> fullBook()
{
    const std::vector<BetLine> numbers = allTopNumbers();
    std::vector<BetLine> lines;
    lines.reserve(LineCount);
    for (size_t at = 0; at < LineCount; ++at)
        lines.push_back(numbers[at % numbers.size()]);
    return lines;
}

} // namespace

Measured measureScan(benchmark::State &state)
{
    const WorkFolder folder(fullBook());
    BareReader bareCopy(folder.copy());
    ConnectLedger();
    const Board board;
    ViKoC scan(board, {}, nullptr);
    scan.show();
    if (!QTest::qWaitForWindowExposed(&scan))
        qFatal("the dialog did not open");
    Samples ours;
    Samples bare;
    for ([[maybe_unused]] auto round : state) {
        QElapsedTimer clock;
        clock.start();
        scan.lvButtons_H0_Click();
        QApplication::processEvents(); // paints
        ours.push_back(double(clock.nsecsElapsed()) / 1e9);
        state.SetIterationTime(ours.back());
        bare.push_back(bareCopy.read({{GroupedStatement, {}}}));
    }
    if (scan.findChild<Spread *>()->rows() != 365)
        qFatal("the scan did not find 365 rows");
    CloseLedger();
    const double taken = quantile(ours, 0.5);
    const double statement = quantile(bare, 0.5);
    return {taken / (2 * statement + 0.1),
            QString::asprintf("%.0f ms : 2 x %.0f ms + 100 ms", taken * 1000, statement * 1000)};
}
