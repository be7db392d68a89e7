// SPDX-License-Identifier: MIT
// The steps of a day as the program does them.
#include "cutting/cutout.h"
#include "cutting/selection.h"
#include "drawcheck/settlement.h"
#include "entry/save.h"
#include "faults/daybook.h"
#include "ledger/ledger.h"
#include "settings/closing.h"
#include "shell/globals.h"
#include "support/boxscript.h"
#include "support/noprogress.h"
#include "support/outcome.h"

using namespace Qt::StringLiterals;

namespace {

/// A step follows each row, which makes the bar the place to listen at.
struct Listener : NoProgress
{
    explicit Listener(const std::function<void()> &heard) : filed(heard) {}
    void step() override { filed(); }

    const std::function<void()> &filed;
};

qsizetype linesInBook()
{
    return LedgerConnection->run(u"SELECT count(*) FROM tblNumber"_s).rows[0][0].toInt();
}

void layOff(const Step &step)
{
    const auto found = LedgerConnection
                           ->run(u"SELECT NPK, num23, numType, updown, numValue FROM tblNumber"
                                 " ORDER BY NPK LIMIT 1 OFFSET ?"_s,
                                 {step.line % linesInBook()})
                           .rows[0];
    SelNum23 = quint8(found[1].toInt());
    SelNumType = quint8(found[2].toInt());
    SelUpDown = found[3].toInt() != 0;
    SelNumValue = found[4].toString();
    CutOut list;
    list.LoadNumrunup();
    const int row = list.grid.searchColumn(CutColumn::Key, found[0].toString());
    const CutLine line = list.lineAt(row);
    list.cut(line, step.partOf(line.amount));
}

void checkDraw(const QString &result)
{
    ResultDigits digits;
    for (size_t at = 0; at < digits.size(); ++at)
        digits[at] = result[qsizetype(at)];
    LoadMoney();
    NoProgress progress;
    DrawCheck check;
    check.readDiscounts();
    check.LoadnumberT(digits, progress);
}

/// Closing ends the program, so the next day begins with the Ledger being opened.
void closeAndStartAnew()
{
    {
        const BoxScript yes({BoxAnswer::Ok});
        if (endStatus([] { closeDraw([] { return true; }); }) != 0)
            qFatal("the program did not end with the draw");
    }
    ConnectLedger();
}

} // namespace

void Step::perform(const std::function<void()> &done) const
{
    Listener listener(done);
    switch (kind) {
    case File:
        saveLines(ticket, customer, listener);
        saveDiscount(discount);
        if (!discount.isEmpty())
            done();
        return;
    case Cut:
        layOff(*this);
        break;
    case Check:
        checkDraw(result);
        break;
    case Close:
        closeAndStartAnew();
    }
    done();
}

void Day::perform(const std::function<void()> &done, int steps)
{
    for (; steps > 0 && !isOver(); --steps)
        next(linesInBook()).perform(done);
}
