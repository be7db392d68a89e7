// SPDX-License-Identifier: MIT
#include "entry/save.h"

#include "entry/digitorders.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

namespace {

/// Grids in the order of saving. The tod grid of two digits precedes the straight one.
constexpr std::array<int, ClassCount> SaveOrder{0, 1, 3, 2, 4, 5, 6, 7};

/// Returns the key for a new bet line.
qint32 SetupNewData2()
{
    return nextKey(u"tblNumber"_s, u"NPK"_s);
}

void addBetLine(const BetClass &betClass, qint16 customer, const QString &number, qint32 amount)
{
    RecordsetA.openTable(u"tblNumber"_s);
    RecordsetA.set(u"NPK"_s, SetupNewData2());
    RecordsetA.set(u"NameFK"_s, customer);
    RecordsetA.set(u"updown"_s, betClass.updown);
    RecordsetA.set(u"numType"_s, betClass.numType);
    RecordsetA.set(u"num23"_s, betClass.num23);
    RecordsetA.set(u"numValue"_s, number);
    RecordsetA.set(u"numBuy"_s, amount);
    RecordsetA.set(u"nuser"_s, CurrentUser);
    RecordsetA.update();
}

} // namespace

std::optional<TicketCustomer> ticketCustomer(const QString &name)
{
    // An exact match comes first, since that is the customer whom LookupKey() finds.
    const bool read = resumeNext([&] {
        RecordsetA.open(u" SELECT tblMember.* FROM tblMember WHERE [Mname] Like ?1"
                        " ORDER BY [Mname] = ?1 COLLATE AnyCase DESC, [MPK]"_s,
                        {trimBlanks(name)});
    });
    std::optional<TicketCustomer> customer;
    if (read && RecordsetA.recordCount() > 0)
        customer = {RecordsetA.field(u"Mname"_s).toString(),
                    RecordsetA.field(u"MPercen"_s).toString()};
    RecordsetA.close();
    return customer;
}

QString todSpelling(const QString &number)
{
    const QString keyed = trimBlanks(number);
    Q_ASSERT(keyed.size() == 3 || keyed.size() == 2);
    const QStringList others = otherOrders(keyed);
    const QStringList marks(others.size(), u"?"_s);
    RecordsetA.open(u"SELECT tblNumber.numValue"
                    " FROM tblNumber INNER JOIN tblMember ON tblNumber.nameFK = tblMember.MPK"
                    " WHERE [num23] = %1 AND [updown] = -1 AND [numType] = 2"
                    " AND [numValue] IN (%2) ORDER BY numValue LIMIT 1"_s.arg(
                        QString::number(keyed.size()), marks.join(u", "_s)),
                    QVariantList(others.begin(), others.end()));
    QString spelling =
        RecordsetA.recordCount() < 1 ? keyed : RecordsetA.field(u"numValue"_s).toString();
    RecordsetA.close();
    return spelling;
}

void saveLines(const Ticket &ticket, const QString &customer, ProgressBar &progress)
{
    // Looked up only when a row is ready to be written, since LookupKey() adds an unknown name.
    std::optional<qint16> customerKey;
    for (const int at : SaveOrder) {
        const SpreadModel &grid = ticket.grids[at];
        const BetClass &betClass = BetClasses[at];
        if (grid.rows() == 0)
            continue;
        progress.start(grid.rows());
        for (int row = 1; row <= grid.rows(); ++row) {
            const QString number = grid.text(row, NumberColumn);
            const qint32 amount = CLng(grid.text(row, AmountColumn));
            const QString filed = betClass.numType == Tod ? todSpelling(number) : number;
            if (!customerKey)
                customerKey = LookupKey(customer, u"tblMember"_s, u"MPK"_s, u"Mname"_s);
            addBetLine(betClass, *customerKey, filed, amount);
            progress.step();
        }
        RecordsetA.close();
    }
}

void saveDiscount(const QString &discount)
{
    if (discount.isEmpty())
        return;
    RecordsetB.openTable(u"tblRMoney"_s);
    // Stored as a number, since SUM() would read the text "1,234" as 1.
    RecordsetB.set(u"rMoney"_s, CDbl(discount));
    RecordsetB.update();
    RecordsetB.close();
}

qint32 savedDiscounts()
{
    RecordsetA.open(u" SELECT  sum(rMoney) as iTotalB  FROM tblRMoney "_s);
    const QVariant sum = RecordsetA.field(u"iTotalB"_s);
    RecordsetA.close();
    return sum.isNull() ? 0 : CLng(numberOf(sum));
}
