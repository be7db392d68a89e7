// SPDX-License-Identifier: MIT
#include "cutting/board.h"

#include "ledger/collation.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"
#include "shell/globals.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Returns the number in column @p at of RecordsetA's current row and the money in the next column.
NumberMoney lineAt(qsizetype at)
{
    const QVariant &money = RecordsetA.field(at + 1);
    return {RecordsetA.field(at).toString(),
            money.isNull() ? std::nullopt : std::optional(numberOf(money))};
}

/// Returns the index in BetClasses of RecordsetA's current row, whose first columns are num23,
/// updown and numType. Returns -1 for a row without a class, which only another program can have
/// written.
int classOfCurrentRow()
{
    const int side = RecordsetA.field(1).toInt();
    return side == -1 || side == 0
               ? classOf(RecordsetA.field(0).toInt(), side == -1, RecordsetA.field(2).toInt())
               : -1;
}

void sortLines(BoardLines &lines)
{
    std::sort(lines.begin(), lines.end(), [](const NumberMoney &left, const NumberMoney &right) {
        return left.money != right.money ? left.money > right.money : left.number < right.number;
    });
}

} // namespace

BoardLines readBoard(const BetClass &betClass)
{
    RecordsetA.open(u"SELECT numValue, Sum(numBuy) AS nMoney FROM tblNumber"
                    " WHERE num23 = ? AND updown = ? AND numType = ? GROUP BY numValue"_s,
                    {betClass.num23, betClass.updown, betClass.numType});
    BoardLines lines;
    lines.reserve(size_t(RecordsetA.recordCount()));
    for (; !RecordsetA.eof(); RecordsetA.moveNext())
        lines.push_back(lineAt(0));
    RecordsetA.close();
    sortLines(lines);
    return lines;
}

std::array<BoardLines, ClassCount> readCustomerBoards(const QString &name)
{
    RecordsetA.open(u"SELECT num23, updown, numType, numValue, Sum(numBuy) AS nMoney FROM tblNumber"
                    " WHERE NameFK IN (SELECT MPK FROM tblMember WHERE [Mname] LIKE ?)"
                    " GROUP BY num23, updown, numType, numValue"_s,
                    {trimBlanks(name)});
    std::array<BoardLines, ClassCount> boards;
    for (; !RecordsetA.eof(); RecordsetA.moveNext()) {
        if (const int at = classOfCurrentRow(); at >= 0)
            boards[size_t(at)].push_back(lineAt(3));
    }
    RecordsetA.close();
    std::for_each(boards.begin(), boards.end(), sortLines);
    return boards;
}

std::optional<QString> customerPercent(const QString &name)
{
    resumeNext([&] {
        RecordsetA.open(u"SELECT tblMember.* FROM tblMember WHERE [Mname] LIKE ?"
                        " ORDER BY MPK LIMIT 1"_s,
                        {u'%' + trimBlanks(name) + u'%'});
    });
    std::optional<QString> percent;
    if (RecordsetA.recordCount() > 0)
        percent = RecordsetA.field(u"Mpercen"_s).toString();
    RecordsetA.close();
    return percent;
}

QStringList readBuyers()
{
    QStringList names;
    RecordsetB.open(u"SELECT Mname FROM tblMember WHERE EXISTS"
                    " (SELECT 1 FROM tblNumber WHERE NameFK = MPK) ORDER BY MPK"_s);
    for (; !RecordsetB.eof(); RecordsetB.moveNext())
        names += RecordsetB.field(0).toString();
    RecordsetB.close();
    std::stable_sort(names.begin(), names.end(), [](const QString &left, const QString &right) {
        return compareThai(left, right) < 0;
    });
    const auto same = [](const QString &left, const QString &right) {
        return compareAnyCase(left, right) == 0;
    };
    names.erase(std::unique(names.begin(), names.end(), same), names.end());
    return names;
}

Board::Board()
{
    for (int at = 0; at < ClassCount; ++at)
        SetupSpread(at);
}

bool Board::isEmpty() const
{
    return allEmpty(grids);
}

void Board::SetupSpread(int at)
{
    setupBetGrid(grids[at], BetClasses[at], SideColumn);
}

void Board::load(int at, const BoardLines &lines, const HotNumbers &hotNumbers,
                 ProgressBar &progress)
{
    SpreadModel &grid = grids[at];
    const SpreadModel::Rebuild rebuild(grid);
    BoardTotal = 0;
    SetupSpread(at);
    grid.setRows(int(lines.size()));
    if (lines.empty()) {
        estimates[at] = u"0"_s;
        grid.setText(TotalRow, AmountColumn, u"0"_s);
        return;
    }
    progress.start(grid.rows());
    fillRows(at, lines, hotNumbers, progress);
    estimates[at] = formatBaht(CDbl(grid.text(1, AmountColumn)) * classRate(at));
    grid.setText(TotalRow, AmountColumn, formatBaht(BoardTotal));
}

/// Writes the rows and sums the money. Halving a hot number may change the order, so the rows are
/// then sorted again.
void Board::fillRows(int at, const BoardLines &lines, const HotNumbers &hotNumbers,
                     ProgressBar &progress)
{
    const BetClass &betClass = BetClasses[at];
    SpreadModel &grid = grids[at];
    std::array<QString, SideColumn + 1> texts;
    texts[TypeColumn] = QString::number(betClass.numType);
    texts[DigitsColumn] = QString::number(betClass.num23);
    texts[SideColumn] = betClass.updown ? u"True"_s : u"False"_s;
    std::vector<double> shown;
    shown.reserve(lines.size());
    int row = 0;
    for (const auto &[number, money] : lines) {
        if (!money)
            raiseInvalidUseOfNull();
        BoardTotal = addLong({BoardTotal, CLng(*money)});
        const bool isHot = hotNumbers.reach(betClass, number);
        texts[NumberColumn] = number;
        shown.push_back(std::round(isHot ? *money / 2 : *money)); // as formatBaht() does
        texts[AmountColumn] = formatBaht(shown.back());
        grid.setRow(++row, texts);
        if (isHot)
            grid.setColor(row, NumberColumn, QColor(HotColor));
        progress.step();
    }
    grid.sortDescending(shown);
}

void Board::takeTotal(int at)
{
    BoardSums[at] = CLng(grids[at].text(TotalRow, AmountColumn));
}
