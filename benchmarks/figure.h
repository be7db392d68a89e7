// SPDX-License-Identifier: MIT
// The measurements behind the table of promised figures. Each measures over the rounds of a
// benchmark's state; both sides of a ratio are taken in turn in each round, so that what else the
// machine does weighs on both.
#pragma once

#include <benchmark/benchmark.h>

#include <QString>

#include <algorithm>
#include <vector>

/// What came out, in the unit of the figure, and what stands behind it for the reader.
struct Measured
{
    double value;
    QString detail;
};

using Samples = std::vector<double>;

/// The value that @p share of the samples do not exceed: 0.5 is the median, 0.99 of a hundred
/// samples the 99th.
inline double quantile(Samples samples, double share)
{
    std::sort(samples.begin(), samples.end());
    return samples[size_t(share * double(samples.size() - 1) + 0.5)];
}

/// The median of one side as a multiple of the other's; both in @p unit.
inline Measured ratio(const Samples &ours, const Samples &theirs, const char *unit)
{
    const double our = quantile(ours, 0.5);
    const double their = quantile(theirs, 0.5);
    return {our / their, QString::asprintf("%.0f : %.0f %s", our, their, unit)};
}

/// Milliseconds from Enter in the entry field to the repainted grid of 500 rows. The numbers
/// keyed are @p firstNumber and up: those from 0 on stand in the grid, those from 500 on do not.
Measured measureEnter(benchmark::State &state, int firstNumber);

/// Milliseconds until 5,000 customers stand in the list of their page.
Measured measureCustomers(benchmark::State &state);

/// Milliseconds from a digit key in the entry field until its word sounds, or with @p painted
/// until the field is repainted with the voice on: the 99th of each hundred.
Measured measureVoice(benchmark::State &state, bool painted);

/// A reload of all eight boards of a book of @p lines lines, as a multiple of the eight statements
/// run through the bare C interface.
Measured measureReload(benchmark::State &state, int lines);

/// The filter of one customer, as a multiple of its statements.
Measured measureFilter(benchmark::State &state, int lines);

/// Milliseconds of a cut in a book of @p lines lines and of the reload of its board, 0 to 7.
Measured measureCut(benchmark::State &state, int board, int lines);

/// A top scan of a full book of 1,000,000 lines to the repainted grid, as a multiple of what it may
/// take: two bare grouped statements over the same lines and 0.1 s.
Measured measureScan(benchmark::State &state);

/// A save of 1,000 rows as a multiple of the same rows inserted through the bare C interface.
Measured measureSave(benchmark::State &state);

/// A save into a Ledger of @p lines lines as a multiple of one into a Ledger of 1,000.
Measured measureSaveGrowth(benchmark::State &state, int lines);

/// The start of the program to its first painted window, on a desktop of Qt's name @p platform,
/// as a multiple of that of a bare window and the opening of the Ledger.
Measured measureStart(benchmark::State &state, const char *platform);

/// The start of the Windows program under Wine as a multiple of the start here, both on X11 and
/// with the type that is shipped.
Measured measureStartUnderWine(benchmark::State &state);

/// True if the Windows program has been built.
bool isStartUnderWineKnown();

/// Megabytes that the program holds at rest.
Measured measureMemory(benchmark::State &state, const char *platform);

/// Milliseconds for the statement of a full book: laid out as pages, from the print button to its
/// first page on screen, and as a sheet.
Measured measureStatement(benchmark::State &state);
Measured measureFirstPage(benchmark::State &state);
Measured measureSheet(benchmark::State &state);

/// Kilobytes of the statement of a full book as a PDF file.
Measured measureDocument(benchmark::State &state);

/// A draw check in a book of @p lines lines, from the sum of the book to the row that keeps the result, as a
/// multiple of the two statements that it reads with, the sum and the search, run through the bare
/// C interface.
Measured measureWinnerSearch(benchmark::State &state, int lines);

/// Milliseconds from the press of the button to 5,000 winning rows on the screen.
Measured measureWinnersShown(benchmark::State &state);
