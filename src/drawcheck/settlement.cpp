// SPDX-License-Identifier: MIT
#include "drawcheck/settlement.h"

#include "desktop/clock.h"
#include "entry/save.h"
#include "ledger/ledger.h"
#include "ledger/schema.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

namespace {

/// Converts a displayed amount to the number to store. An empty one means 0.
double storedAmount(const QString &shown)
{
    const QString text = trimBlanks(shown);
    return CDbl(text.isEmpty() ? u"0"_s : text);
}

void writeTrue(const ResultDigits &digits, double profit, double payout)
{
    RecordsetA.openRow(u"tblTrue"_s, u"PK"_s, 1);
    for (size_t at = 0; at < PrizePlaces.size(); ++at)
        RecordsetA.set(QLatin1String(ResultColumns[at].name),
                       resultNumber(digits, PrizePlaces[at]));
    RecordsetA.set(u"numdate"_s, currentDateTime().date().toString(Qt::ISODate));
    RecordsetA.set(u"moneyup"_s, profit);
    RecordsetA.set(u"moneydown"_s, payout);
    RecordsetA.update();
    RecordsetA.close();
}

} // namespace

void DrawCheck::readDiscounts()
{
    iTotalB = 0;
    resumeNext([this] { iTotalB = savedDiscounts(); });
}

void DrawCheck::zeroAmounts()
{
    Label19 = u"0"_s;
    Label21 = u"0"_s;
}

void DrawCheck::LoadnumberT(const ResultDigits &digits, ProgressBar &progress)
{
    SetupSpread();
    if (book == Book::Ours)
        showTakings();
    const BoundStatement search = winnerSearch(book, digits);
    RecordsetA.open(search.sql, search.values);
    winners.setRows(RecordsetA.recordCount());
    if (winners.rows() == 0) {
        RecordsetA.close();
        Savefalse(digits);
        return;
    }
    progress.start(winners.rows());
    listWinners(progress);
    if (book == Book::Ours) {
        Nubyod2();
        showProfit();
        SaveTrue(digits);
    } else {
        Label19 = u"เลขคัดออก"_s;
        Label21 = u"เลขคัดออก"_s;
    }
    progress.finish();
}

/// Sets the profit to the sum of all stakes minus the discounts.
void DrawCheck::showTakings()
{
    RecordsetA.open(u" SELECT  SUM(tblNumber.numBuy) as TotalMoneyA FROM tblNumber "_s);
    const QVariant sum = RecordsetA.field(u"TotalMoneyA"_s);
    RecordsetA.close();
    const double taken = sum.isNull() ? 0 : numberOf(sum); // an empty book took nothing
    Label21 = formatBaht(taken - iTotalB);
}

void DrawCheck::listWinners(ProgressBar &progress)
{
    // Read only once, since hot numbers cannot change during the check.
    const HotNumbers hot = book == Book::Ours ? HotNumbers(readHotNumbers()) : HotNumbers();
    for (int row = 1; !RecordsetA.eof(); RecordsetA.moveNext(), ++row) {
        writeWinner(winners, row);
        halvePayout(winners, row, hot);
        progress.step();
    }
    RecordsetA.close();
}

/// Sums the payouts as displayed in the grid, after halving and rounding.
void DrawCheck::Nubyod2()
{
    qint32 sum = 0;
    for (int row = 1; row <= winners.rows(); ++row)
        sum = CLng(CDbl(winners.text(row, WinPayoutColumn)) + sum);
    Label19 = formatBaht(sum);
}

/// Subtracts the payout from the profit, to which it adds the discounts again. Calculates with the
/// displayed texts: an amount of 0 is "", from which CDbl() throws "Type mismatch".
void DrawCheck::showProfit()
{
    Label21 = formatBaht(CDbl(Label21) + iTotalB - CDbl(Label19));
}

void DrawCheck::SaveTrue(const ResultDigits &digits) const
{
    writeTrue(digits, storedAmount(Label21), storedAmount(Label19));
}

void DrawCheck::Savefalse(const ResultDigits &digits) const
{
    writeTrue(digits, storedAmount(Label21), 0);
}
