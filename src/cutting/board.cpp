// SPDX-License-Identifier: MIT
#include "cutting/board.h"

#include "runtime/values.h"
#include "shell/globals.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Payout per baht of each class.
constexpr std::array<const qint16 *, ClassCount> Rates{
    &Rate3up, &Rate3tod, &Rate2up, &Rate2tod, &Raterunup, &Rate3down, &Rate2down, &Raterundown};

} // namespace

QString boardStatement(bool filtered)
{
    // A customer's lines are found by the index on buyers; a plus keeps the one on classes away.
    const QString plus = filtered ? u"+"_s : QString();
    const QString customer =
        filtered ? u" AND NameFK IN (SELECT MPK FROM tblMember WHERE [Mname] LIKE ?)"_s : QString();
    return u"SELECT numValue, Sum(numBuy) AS nMoney FROM tblNumber WHERE %1num23 = ?"
           " AND %1updown = ? AND %1numType = ?%2 GROUP BY numValue"
           " ORDER BY Sum(numBuy) DESC, numValue"_s.arg(plus, customer);
}

QString customerStatement()
{
    return u"SELECT tblMember.* FROM tblMember WHERE [Mname] LIKE ? ORDER BY MPK LIMIT 1"_s;
}

QStringList readBuyers()
{
    QStringList names;
    RecordsetB.open(u"SELECT Mname FROM tblMember WHERE EXISTS"
                    " (SELECT 1 FROM tblNumber WHERE NameFK = MPK)"
                    " GROUP BY Mname COLLATE AnyCase ORDER BY Mname COLLATE ThaiOrder"_s);
    for (; !RecordsetB.eof(); RecordsetB.moveNext())
        names += RecordsetB.field(u"Mname"_s).toString();
    RecordsetB.close();
    return names;
}

Board::Board()
{
    for (int at = 0; at < ClassCount; ++at)
        SetupSpread(at);
}

bool Board::isEmpty() const
{
    return std::all_of(grids.begin(), grids.end(),
                       [](const SpreadModel &grid) { return grid.rows() == 0; });
}

void Board::SetupSpread(int at)
{
    setupBetGrid(grids[at], BetClasses[at], SideColumn);
}

void Board::load(int at, bool filtered, ProgressBar &progress)
{
    const BetClass &betClass = BetClasses[at];
    SpreadModel &grid = grids[at];
    const SpreadModel::Rebuild rebuild(grid);
    BoardTotal = 0;
    SetupSpread(at);
    QVariantList values{betClass.num23, betClass.updown, betClass.numType};
    if (filtered)
        values += trimBlanks(FilterName);
    RecordsetA.open(boardStatement(filtered), values);
    grid.setRows(RecordsetA.recordCount());
    if (grid.rows() == 0) {
        RecordsetA.close();
        estimates[at] = u"0"_s;
        grid.setText(TotalRow, AmountColumn, u"0"_s);
        return;
    }
    progress.start(grid.rows());
    fillRows(at, progress);
    RecordsetA.close();
    grid.sortDescending(AmountColumn, [](const QString &text) {
        return text.isEmpty() ? 0 : CDbl(text); // no money has no text
    });
    estimates[at] = formatBaht(CDbl(grid.text(1, AmountColumn)) * *Rates[at]);
    grid.setText(TotalRow, AmountColumn, formatBaht(BoardTotal));
}

void Board::fillRows(int at, ProgressBar &progress)
{
    const BetClass &betClass = BetClasses[at];
    SpreadModel &grid = grids[at];
    const HotNumbers &hotNumbers = m_hotNumbers.get([] { return HotNumbers(readHotNumbers()); });
    const QString numType = QString::number(betClass.numType);
    const QString num23 = QString::number(betClass.num23);
    const QString updown = betClass.updown ? u"True"_s : u"False"_s;
    const qsizetype moneyPlace = RecordsetA.place(u"nMoney"_s);
    const qsizetype numberPlace = RecordsetA.place(u"numValue"_s);
    for (int row = 1; !RecordsetA.eof(); RecordsetA.moveNext(), ++row) {
        const double money = numberOf(RecordsetA.field(moneyPlace));
        BoardTotal = addLong({BoardTotal, CLng(money)});
        const QString number = RecordsetA.field(numberPlace).toString();
        const bool isHot = hotNumbers.reach(betClass, number);
        grid.setText(row, TypeColumn, numType);
        grid.setText(row, NumberColumn, number);
        grid.setText(row, AmountColumn, formatBaht(isHot ? money / 2 : money));
        grid.setText(row, DigitsColumn, num23);
        grid.setText(row, SideColumn, updown);
        if (isHot)
            grid.setColor(row, NumberColumn, QColor(HotColor));
        progress.step();
    }
}

void Board::takeTotal(int at)
{
    BoardSums[at] = CLng(grids[at].text(TotalRow, AmountColumn));
}

void Board::readSavedTicketTotal()
{
    RecordsetA.open(u" SELECT  sum(rMoney) as iTotalB  FROM tblRMoney "_s);
    const QVariant sum = RecordsetA.field(u"iTotalB"_s);
    SavedTicketTotal = trimBlanks(sum.toString()).isEmpty() ? 0 : CLng(numberOf(sum));
    RecordsetA.close();
}
