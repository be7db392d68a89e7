// SPDX-License-Identifier: MIT
#include "drawcheck/winners.h"

#include "ledger/ledger.h"
#include "runtime/values.h"
#include "shell/globals.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array WinnerColumns{
    GridColumn{WinKindColumn, u"ประเภท"},
    GridColumn{WinNumberColumn, u"เลข"},
    GridColumn{WinPercentColumn, u"หัก %"},
    GridColumn{WinStakeColumn, u"ถูก", Qt::AlignRight},
    GridColumn{WinPayoutColumn, u"ได้เงิน", Qt::AlignRight},
    GridColumn{WinNameColumn, u"ชื่อลูกค้า"},
    GridColumn{WinTelephoneColumn, u"เบอร์ติดต่อ"},
};

/// Returns the condition for the winning lines of one class, with a parameter for each winning
/// number. It uses instr(), so that a number stored with a stray space is paid too.
QString classClause(const BetClass &betClass, qsizetype numbers)
{
    const QStringList tests(numbers, u"instr(numValue, ?) > 0"_s);
    return u"num23 = %1 AND updown = %2 AND numType = %3 AND (%4)"_s.arg(
        QString::number(betClass.num23), betClass.updown ? u"-1"_s : u"0"_s,
        QString::number(betClass.numType), tests.join(u" OR "_s));
}

bool isTop()
{
    return numberOf(RecordsetA.field(u"updown"_s)) != 0;
}

int whole(const QString &column)
{
    return CInt(numberOf(RecordsetA.field(column)));
}

/// Returns the payout rate of the current row. winnerSearch() finds only rows of a class.
double rateOfCurrent()
{
    return classRate(classOf(whole(u"num23"_s), isTop(), whole(u"numType"_s)));
}

} // namespace

BoundStatement winnerSearch(Book book, const ResultDigits &digits)
{
    QStringList clauses;
    QVariantList values;
    for (size_t at = 0; at < ClassCount; ++at) {
        const QStringList numbers = winningNumbers(digits, at);
        clauses += classClause(BetClasses[at], numbers.size());
        for (const QString &number : numbers)
            values += number;
    }
    // NOT INDEXED, since many run bets win, and fetching so many lines through an index takes
    // longer than reading the whole table. tblMember is joined to the grouped rows, not to each
    // line.
    return {
        u" SELECT Mpercen, Mber, Mname, win.* FROM"
        " (SELECT NameFK, num23, updown, numType, numValue, sum(numBuy) AS nMoney"
        " FROM %1 NOT INDEXED WHERE %2 GROUP BY NameFK, num23, updown, numType, numValue) AS win"
        " INNER JOIN tblMember ON NameFK = MPK"
        " ORDER BY Mname COLLATE ThaiOrder, updown, numType, num23, numValue, NameFK"_s.arg(
            book == Book::Ours ? u"tblNumber"_s : u"tblNumberCut"_s, clauses.join(u" OR "_s)),
        values};
}

void setupWinners(SpreadModel &grid)
{
    grid.setup(int(WinnerColumns.size()), 1);
    grid.setTitles(FirstHeaderRow, WinnerColumns);
}

void writeWinner(SpreadModel &grid, int row)
{
    const QVariant stake = RecordsetA.field(u"nMoney"_s);
    const bool paid = !stake.isNull(); // lines whose amount is NULL are paid nothing
    grid.setText(row, WinKindColumn, twoPartLabel(whole(u"numType"_s), isTop()));
    grid.setText(row, WinPayoutColumn,
                 paid ? formatBaht(numberOf(stake) * rateOfCurrent()) : QString());
    grid.setText(row, WinNumberColumn, u' ' + RecordsetA.field(u"numValue"_s).toString());
    grid.setText(row, WinPercentColumn, u' ' + RecordsetA.field(u"Mpercen"_s).toString());
    grid.setText(row, WinStakeColumn, paid ? formatBaht(numberOf(stake)) : QString());
    grid.setText(row, WinNameColumn, u' ' + RecordsetA.field(u"Mname"_s).toString());
    grid.setText(row, WinTelephoneColumn, u'0' + RecordsetA.field(u"Mber"_s).toString());
}

void halvePayout(SpreadModel &grid, int row, const HotNumbers &hot)
{
    int left = hot.count(whole(u"numType"_s), RecordsetA.field(u"numValue"_s).toString());
    for (; left > 0; --left) {
        grid.setText(row, WinPayoutColumn, formatBaht(CLng(grid.text(row, WinPayoutColumn)) / 2.0));
        grid.setColor(row, WinPayoutColumn, QColor(HotColor));
    }
}
