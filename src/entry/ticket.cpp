// SPDX-License-Identifier: MIT
#include "entry/ticket.h"

#include "runtime/values.h"

using namespace Qt::StringLiterals;

Ticket::Ticket()
{
    SetupSpread();
}

bool Ticket::isEmpty() const
{
    return allEmpty(grids);
}

void Ticket::SetupSpread()
{
    for (int at = 0; at < ClassCount; ++at)
        setupBetGrid(grids[at], BetClasses[at], AmountColumn);
}

void Ticket::writeLine(int grid, int found, const QString &number, const QString &amount)
{
    SpreadModel &rows = grids[grid];
    if (found >= 0) {
        const double sum = CDbl(rows.text(found, AmountColumn)) + CDbl(amount);
        rows.setText(found, AmountColumn, formatBaht(sum));
        return;
    }
    rows.insertRow(1);
    rows.setText(1, NumberColumn, number);
    rows.setText(1, AmountColumn, formatBaht(CDbl(amount)));
}

void Ticket::AddLine(int grid, const QString &number, const QString &amount, int slot)
{
    FoundRow[slot] = grids[grid].searchColumn(NumberColumn, number);
    writeLine(grid, FoundRow[slot], number, amount);
}

GridTotals Ticket::totalGrids()
{
    GridTotals totals{};
    for (int at = 0; at < ClassCount; ++at) {
        SpreadModel &grid = grids[at];
        for (int row = 1; row <= grid.rows(); ++row)
            totals[at] = CLng(CDbl(grid.text(row, AmountColumn)) + totals[at]);
        grid.setText(TotalRow, AmountColumn, formatBaht(totals[at]));
    }
    return totals;
}

QString discountMoney(const QString &total, const QString &percent)
{
    return formatBaht(CDbl(total) * CDbl(percent) / 100);
}
