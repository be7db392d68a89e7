// SPDX-License-Identifier: MIT
// Measures a draw check against its bare statements, and the time from the click on the check
// button to thousands of painted winners.
#include "book.h"
#include "figure.h"
#include "paintwatch.h"

#include "drawcheck/form4.h"
#include "shell/globals.h"
#include "widgets/spread.h"
#include "widgets/workprogress.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLineEdit>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int WinnerCount = 5000;
const QString Result = u"12345678901234567"_s;

ResultDigits resultDigits()
{
    ResultDigits digits;
    for (int at = 0; at < DigitCount; ++at)
        digits[size_t(at)] = Result.mid(at, 1);
    return digits;
}

/// Returns random lines: some 5,000 winning rows in a million lines.
std::vector<BetLine> randomLines(int count)
{
    std::mt19937 random(20261122);
    std::vector<BetLine> lines;
    lines.reserve(size_t(count));
    for (size_t at = 0; at < size_t(count); ++at) {
        const int customer = 1 + int(random() % CustomerCount);
        lines.push_back(betLine(at % ClassCount, customer, int(random() % 1000)));
    }
    return lines;
}

/// Reads rates and discounts, then checks a draw. Returns the seconds of the check alone, from the
/// sum of the book to the stored result.
double checkDraw(int &winners)
{
    ConnectLedger();
    LoadMoney();
    DrawCheck check;
    WorkProgress bar;
    check.readDiscounts();
    QElapsedTimer clock;
    clock.start();
    check.LoadnumberT(resultDigits(), bar);
    const double taken = double(clock.nsecsElapsed()) / 1e9;
    winners = check.winners.rows();
    CloseLedger();
    return taken;
}

} // namespace

Measured measureWinnerSearch(benchmark::State &state, int lines)
{
    const WorkFolder book(randomLines(lines));
    const BoundStatement search = winnerSearch(Book::Ours, resultDigits());
    const BareStatements statements{{"SELECT sum(numBuy) FROM tblNumber", {}},
                                    {search.sql.toUtf8(), search.values}};
    const QByteArray path = book.path().toUtf8();
    Samples ours;
    Samples bare;
    int winners = 0;
    for ([[maybe_unused]] auto round : state) {
        ours.push_back(checkDraw(winners) * 1e6);
        bare.push_back(BareReader(path).read(statements) * 1e6);
        state.SetIterationTime(ours.back() / 1e6);
    }
    Measured measured = ratio(ours, bare, "us");
    measured.detail += QString::asprintf(", %d rows", winners);
    return measured;
}

Measured measureWinnersShown(benchmark::State &state)
{
    const WorkFolder folder;
    ConnectLedger();
    folder.run(u"WITH RECURSIVE n(k) AS (SELECT 1 UNION ALL SELECT k + 1 FROM n WHERE k < ?)"
               " INSERT INTO tblMember SELECT k, 'สม' || (k * 7919 % 1000) || 'ใจดี', 8 || k, 10"
               " FROM n"_s,
               {WinnerCount / 10});
    folder.run(u"WITH RECURSIVE n(k) AS (SELECT 0 UNION ALL SELECT k + 1 FROM n WHERE k < ? - 1)"
               " INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy)"
               " SELECT 1 + k / 10, w.num23, w.updown, w.numType, w.numValue, 20 FROM n JOIN"
               " (SELECT 0 AS i, 3 AS num23, -1 AS updown, 1 AS numType, '123' AS numValue"
               "  UNION VALUES (1, 3, -1, 2, '321'), (2, 2, -1, 1, '23'), (3, 2, -1, 2, '21'),"
               "  (4, 1, -1, 3, '1'), (5, 1, -1, 3, '2'), (6, 3, 0, 1, '456'), (7, 2, 0, 1, '67'),"
               "  (8, 1, 0, 3, '6'), (9, 1, 0, 3, '7')) AS w ON w.i = k % 10"_s,
               {WinnerCount});
    CloseLedger();
    const auto window = openProgram(3);
    auto *grid = window->findChild<Spread *>(u"fpSpread1"_s);
    auto *button = window->findChild<QAbstractButton *>(u"Command18"_s);
    QTest::keyClicks(window->findChild<QLineEdit *>(u"text4"_s), Result.first(1));
    for (const QChar digit : Result.mid(1))
        QTest::keyClicks(QApplication::focusWidget(), digit);
    Samples samples;
    for ([[maybe_unused]] auto round : state) {
        QApplication::processEvents();
        const PaintWatch watch(grid->viewport());
        QElapsedTimer clock;
        clock.start();
        button->click();
        watch.wait();
        samples.push_back(double(clock.nsecsElapsed()) / 1e6);
        state.SetIterationTime(samples.back() / 1000);
        if (grid->rows() != WinnerCount)
            qFatal("the check found %d winners", grid->rows());
    }
    CloseLedger();
    return {quantile(samples, 0.5), QString::asprintf("slowest %.0f", quantile(samples, 1))};
}
