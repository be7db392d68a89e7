// SPDX-License-Identifier: MIT
// The benchmarks; main.cpp prints each as a row of its table. Each runs for the iterations of a
// benchmark::State.
// Both sides of a ratio are measured in each iteration, so that other work on the machine affects
// both.
#pragma once

#include <benchmark/benchmark.h>

#include <QString>

#include <algorithm>
#include <vector>

/// A result in the unit of its figure, with details for the reader.
struct Measured
{
    double value;
    QString detail;
};

using Samples = std::vector<double>;

/// Returns the value that @p share of the samples do not exceed: 0.5 gives the median, 0.99 the
/// 99th percentile.
inline double quantile(Samples samples, double share)
{
    std::sort(samples.begin(), samples.end());
    return samples[size_t(share * double(samples.size() - 1) + 0.5)];
}

/// Returns the median of one side as a multiple of the other side's. Both are in @p unit.
inline Measured ratio(const Samples &ours, const Samples &theirs, const char *unit)
{
    const double our = quantile(ours, 0.5);
    const double their = quantile(theirs, 0.5);
    return {our / their, QString::asprintf("%.0f : %.0f %s", our, their, unit)};
}

/// Milliseconds from Enter in the entry field to the repainted grid of 500 rows. The numbers typed
/// start at @p firstNumber: those below 500 are in the grid already, those from 500 on are not.
/// The median of the 99th percentiles of each hundred samples.
Measured measureEnter(benchmark::State &state, int firstNumber);

/// Milliseconds to list 5,000 customers on their page.
Measured measureCustomers(benchmark::State &state);

/// Milliseconds from a digit key in the entry field, with the voice on, to the start of its word,
/// or with @p painted to the repainted field: the median of the 99th percentiles of each hundred
/// samples.
Measured measureVoice(benchmark::State &state, bool painted);

/// A reload of all eight boards of a book of @p lines lines, as a multiple of reading the same data
/// (boards, hot numbers, customers) through SQLite's C interface.
Measured measureReload(benchmark::State &state, int lines);

/// Filtering the boards to one customer, as a multiple of reading the same data through SQLite's C
/// interface, with one statement for each board.
Measured measureFilter(benchmark::State &state, int lines);

/// Milliseconds of a cut from @p board, 0 to 7, of a book of @p lines lines, with the reload of the
/// board.
Measured measureCut(benchmark::State &state, int board, int lines);

/// A top scan of a full book of 1,000,000 lines to the repainted grid, as a multiple of its limit:
/// two grouped statements over the same lines plus 0.1 s.
Measured measureScan(benchmark::State &state);

/// A save of 1,000 rows as a multiple of the same rows inserted through SQLite's C interface.
Measured measureSave(benchmark::State &state);

/// A save into a Ledger of @p lines lines as a multiple of one into a Ledger of 1,000.
Measured measureSaveGrowth(benchmark::State &state, int lines);

/// The start of the program to its first painted window on the QPA platform @p platform, as a
/// multiple of the start of a bare window that opens the Ledger.
Measured measureStart(benchmark::State &state, const char *platform);

/// The start of the Windows program under Wine as a multiple of the start of the Linux program,
/// both on X11 and with the shipped fonts.
Measured measureStartUnderWine(benchmark::State &state);

/// measureStartUnderWine() needs the Windows program.
bool isWindowsProgramBuilt();

/// Megabytes of resident memory of the idle program.
Measured measureMemory(benchmark::State &state, const char *platform);

/// Milliseconds to lay out the statement of a full book as pages.
Measured measureStatement(benchmark::State &state);

/// Milliseconds from opening the viewer of the statement of a full book to its painted first page.
Measured measureFirstPage(benchmark::State &state);

/// Milliseconds to convert the statement of a full book, laid out as pages, to .xls in memory.
Measured measureSheet(benchmark::State &state);

/// Kilobytes of the statement of a full book as a PDF file.
Measured measureDocument(benchmark::State &state);

/// A draw check in a book of @p lines lines, from the sum of the book to the stored result, as a
/// multiple of its two SELECT statements, sum and search, run through SQLite's C interface.
Measured measureWinnerSearch(benchmark::State &state, int lines);

/// Milliseconds from the click on the check button to 5,000 painted winning rows.
Measured measureWinnersShown(benchmark::State &state);
