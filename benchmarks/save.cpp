// SPDX-License-Identifier: MIT
// Measures a save against the same durable inserts through SQLite's C interface, and in a big
// Ledger against a small one.
#include "book.h"
#include "figure.h"

#include "entry/save.h"
#include "widgets/workprogress.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowCount = 1000;

/// Rows of the measured ticket by class, RowCount in total. A third are tod bets, for which a save
/// searches the Ledger for other spellings.
constexpr std::array<int, ClassCount> RowsByClass{300, 270, 100, 80, 10, 140, 90, 10};

std::vector<BetLine> ticketLines()
{
    std::vector<BetLine> lines;
    for (size_t at = 0; at < ClassCount; ++at) {
        for (int row = 0; row < RowsByClass[at]; ++row)
            lines.push_back(betLine(at, 1, row * 37)); // steps of 37 use each number once
    }
    return lines;
}

struct ThousandRows : Ticket
{
    ThousandRows()
    {
        for (const BetLine &line : ticketLines())
            AddLine(int(line.betClass - BetClasses.data()), QString::fromLatin1(line.number),
                    u"20"_s);
    }
};

/// A Ledger with customers and @p count lines. It keeps its own connection, so that several can be
/// open.
class FilledLedger : public WorkFolder
{
public:
    explicit FilledLedger(int count) : WorkFolder(drawLines(count)), m_count(count)
    {
        ConnectLedger();
        m_connection = std::move(LedgerConnection);
    }

    /// Saves the ticket as the page does, with progress bar, and deletes the rows again. Returns
    /// the microseconds per row.
    double save(const Ticket &ticket)
    {
        WorkProgress bar;
        LedgerConnection.swap(m_connection);
        run(u"PRAGMA shrink_memory"_s); // empties the page cache
        QElapsedTimer clock;
        clock.start();
        saveLines(ticket, u"ลูกค้า 1"_s, bar);
        const double taken = double(clock.nsecsElapsed()) / 1000 / RowCount;
        if (run(u"SELECT count(*) FROM tblNumber"_s).first().toInt() != m_count + RowCount)
            qFatal("the save did not file its rows");
        run(u"DELETE FROM tblNumber WHERE NPK > ?"_s, {m_count});
        LedgerConnection.swap(m_connection);
        return taken;
    }

    /// Closes the Ledger and inserts the same lines through SQLite's C interface. Returns the
    /// microseconds per row.
    double saveBare()
    {
        m_connection.reset();
        return insertBare(path().toUtf8(), ticketLines(), Durable::EachLine) * 1e6 / RowCount;
    }

private:
    int m_count;
    std::unique_ptr<Connection> m_connection;
};

} // namespace

Measured measureSave(benchmark::State &state)
{
    const ThousandRows ticket;
    Samples ours;
    Samples bare;
    for ([[maybe_unused]] auto round : state) {
        ours.push_back(FilledLedger(0).save(ticket));
        bare.push_back(FilledLedger(0).saveBare());
        state.SetIterationTime(ours.back() * RowCount / 1e6);
    }
    return ratio(ours, bare, "us a row");
}

Measured measureSaveGrowth(benchmark::State &state, int lines)
{
    const ThousandRows ticket;
    FilledLedger big(lines);
    FilledLedger small(1'000);
    Samples inBig;
    Samples inSmall;
    for ([[maybe_unused]] auto round : state) {
        inBig.push_back(big.save(ticket));
        inSmall.push_back(small.save(ticket));
        state.SetIterationTime(inBig.back() * RowCount / 1e6);
    }
    return ratio(inBig, inSmall, "us a row");
}
