// SPDX-License-Identifier: MIT
// Runs the measurements and prints a table with figure, bound, measured value and verdict. Ends
// with status 1 if a bound is missed.
#include "figure.h"

#include "desktop/application.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <map>
#include <optional>

namespace {

struct Figure
{
    const char *name;
    double bound; ///< the highest value that is good enough
    const char *unit;
    int rounds;
    Measured (*measure)(benchmark::State &state);
};

using State = benchmark::State;

constexpr std::array Figures{
    Figure{"Enter to repainted grid of 500 rows, new row, 99th of 100", 16, "ms", 1000,
           [](State &state) { return measureEnter(state, 500); }},
    Figure{"Enter to repainted grid of 500 rows, merge, 99th of 100", 16, "ms", 1000,
           [](State &state) { return measureEnter(state, 0); }},
    Figure{"Digit key to its word on a dummy device, 99th of 100", 20, "ms", 1000,
           [](State &state) { return measureVoice(state, false); }},
    Figure{"Digit key to repainted field, voice on, 99th of 100", 16, "ms", 1000,
           [](State &state) { return measureVoice(state, true); }},
    Figure{"5,000 customers listed", 200, "ms", 21, measureCustomers},
    Figure{"Statement of a full book laid out", 1000, "ms", 21, measureStatement},
    Figure{"Statement of a full book, first page on screen", 200, "ms", 21, measureFirstPage},
    Figure{"Statement of a full book, size as PDF", 1000, "kB", 5, measureDocument},
    Figure{"Statement of 1,000 rows as .xls", 100, "ms", 21, measureSheet},
    Figure{"Save of 1,000 rows : bare durable statements", 2, "times", 21, measureSave},
    Figure{"Save at 100,000 lines : at 1,000 lines", 1.2, "times", 21,
           [](State &state) { return measureSaveGrowth(state, 100'000); }},
    Figure{"Save at 1,000,000 lines : at 1,000 lines", 1.2, "times", 21,
           [](State &state) { return measureSaveGrowth(state, 1'000'000); }},
    Figure{"Reload of all boards : bare statements, 1,000 lines", 2.5, "times", 51,
           [](State &state) { return measureReload(state, 1'000); }},
    Figure{"Reload of all boards : bare statements, 100,000 lines", 1.1, "times", 21,
           [](State &state) { return measureReload(state, 100'000); }},
    Figure{"Reload of all boards : bare statements, 1,000,000 lines", 1.1, "times", 11,
           [](State &state) { return measureReload(state, 1'000'000); }},
    Figure{"Filter of one customer : bare statements, 1,000 lines", 2.5, "times", 51,
           [](State &state) { return measureFilter(state, 1'000); }},
    Figure{"Filter of one customer : bare statements, 100,000 lines", 1.1, "times", 21,
           [](State &state) { return measureFilter(state, 100'000); }},
    Figure{"Filter of one customer : bare statements, 1,000,000 lines", 1.1, "times", 11,
           [](State &state) { return measureFilter(state, 1'000'000); }},
    Figure{"Cut and reload of 3 digits straight, 1,000 lines", 50, "ms", 21,
           [](State &state) { return measureCut(state, 0, 1'000); }},
    Figure{"Cut and reload of 3 digits straight, 100,000 lines", 50, "ms", 21,
           [](State &state) { return measureCut(state, 0, 100'000); }},
    Figure{"Cut and reload of 3 digits straight, 1,000,000 lines", 50, "ms", 21,
           [](State &state) { return measureCut(state, 0, 1'000'000); }},
    Figure{"Cut and reload of a run on top, 1,000,000 lines", 50, "ms", 21,
           [](State &state) { return measureCut(state, 4, 1'000'000); }},
    Figure{"Top scan of a full book : 2 bare grouped statements, 0.1 s", 1, "times", 11,
           measureScan},
    Figure{"Draw check : its bare statements, 1,000,000 lines", 1.2, "times", 15,
           [](State &state) { return measureWinnerSearch(state, 1'000'000); }},
    Figure{"5,000 winning rows shown", 500, "ms", 15, measureWinnersShown},
    Figure{"Start to first paint : bare window and Ledger, offscreen", 1.5, "times", 31,
           [](State &state) { return measureStart(state, "offscreen"); }},
    Figure{"Start to first paint : bare window and Ledger, X11", 1.5, "times", 31,
           [](State &state) { return measureStart(state, "xcb"); }},
    Figure{"Start to first paint under Wine : X11", 3, "times", 15, measureStartUnderWine},
    Figure{"Memory at rest, offscreen", 120, "MB", 1,
           [](State &state) { return measureMemory(state, "offscreen"); }},
    Figure{"Memory at rest, X11", 120, "MB", 1,
           [](State &state) { return measureMemory(state, "xcb"); }},
};

/// Prints a line of the table as soon as its figure has been measured.
class Table : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override
    {
        std::printf("%-58s %-10s %10s  %s\n", "Figure", "At most", "Measured", "Verdict");
        return true;
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            const Figure &figure = *figures.at(run.run_name.function_name);
            const double measured = run.counters.at("measured");
            const bool met = measured <= figure.bound;
            allMet = allMet.value_or(true) && met;
            std::printf("%-58s %-4g %-5s %10.2f  %-7s  %s\n", figure.name, figure.bound,
                        figure.unit, measured, met ? "met" : "MISSED", run.report_label.c_str());
            std::fflush(stdout);
        }
    }

    std::map<std::string, const Figure *> figures;
    std::optional<bool> allMet; ///< std::nullopt while no figure has been measured
};

} // namespace

int main(int argc, char **argv)
{
    // Next to the executable: /tmp may be in memory, where nothing waits for a disk. A separate
    // folder also keeps a running program from counting as a second copy.
    const QTemporaryDir tempFolder(QFileInfo(QString::fromLocal8Bit(argv[0])).path()
                                   + QStringLiteral("/benchmark-XXXXXX"));
    qputenv("TMPDIR", tempFolder.path().toLocal8Bit());
    // The offscreen platform logs a warning for every new window size.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const Application application(argc, argv);
    benchmark::Initialize(&argc, argv);

    Table table;
    for (const Figure &figure : Figures) {
        if (figure.measure == measureStartUnderWine && !isWindowsProgramBuilt())
            continue;
        table.figures[figure.name] = &figure;
        const auto run = [&figure](State &state) {
            const Measured measured = figure.measure(state);
            state.counters["measured"] = measured.value;
            state.SetLabel(measured.detail.toStdString());
        };
        benchmark::RegisterBenchmark(figure.name, run)->Iterations(figure.rounds)->UseManualTime();
    }
    benchmark::RunSpecifiedBenchmarks(&table);
    return table.allMet.value_or(false) ? 0 : 1;
}
