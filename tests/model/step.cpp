// SPDX-License-Identifier: MIT
#include "model/step.h"

#include "cutting/cutout.h"
#include "cutting/selection.h"
#include "drawcheck/settlement.h"
#include "entry/save.h"
#include "ledger/ledger.h"
#include "settings/closing.h"
#include "shell/globals.h"
#include "support/boxscript.h"
#include "support/noprogress.h"
#include "support/outcome.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

/// The bar steps after each row.
struct Listener : NoProgress
{
    explicit Listener(const std::function<void()> &heard) : filed(heard) {}
    void step() override { filed(); }

    const std::function<void()> &filed;
};

void saveTicket(const Step &step, const std::function<void()> &done)
{
    Ticket ticket;
    for (const auto &bets : step.ticket.bets) {
        for (auto bet = bets.rbegin(); bet != bets.rend(); ++bet)
            ticket.AddLine(int(bet->betClass), bet->number, QString::number(bet->amount));
    }
    Listener listener(done);
    saveLines(ticket, step.customer, listener);
    saveDiscount(model::baht(step.discount));
    if (step.discount != 0)
        done();
}

void cutLine(const Step &step)
{
    const auto rows =
        LedgerConnection
            ->run(u"SELECT NPK, num23, numType, updown, numValue FROM tblNumber ORDER BY NPK"
                  " LIMIT 1 OFFSET ? % max(1, (SELECT count(*) FROM tblNumber))"_s,
                  {step.line})
            .rows;
    if (rows.isEmpty())
        return;
    const QVariantList &found = rows[0];
    SelNum23 = quint8(found[1].toInt());
    SelNumType = quint8(found[2].toInt());
    SelUpDown = found[3].toInt() != 0;
    SelNumValue = found[4].toString();
    CutOut list;
    list.LoadNumrunup();
    const CutLine line = list.lineAt(list.grid.searchColumn(CutColumn::Key, found[0].toString()));
    list.cut(line, qint32(step.partOf(line.amount)));
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

/// Closing ends the program, so the Ledger is opened again.
void closeAndRestart()
{
    {
        const BoxScript yes(BoxAnswer::Ok);
        if (endStatus([] { closeDraw([] { return true; }); }) != 0)
            qFatal("the program did not end with the draw");
    }
    ConnectLedger();
}

} // namespace

Step Step::random(Kind kind, QRandomGenerator &random, int most, bool discounted)
{
    Step step{.kind = kind, .customer = u"ลูกค้า-%1"_s.arg(random.bounded(100))};
    const auto digits = [&](int count) {
        QString number;
        while (number.size() < count)
            number += QString::number(random.bounded(10));
        return number;
    };
    step.result = digits(17);
    for (int bets = random.bounded(1, most); bets > 0; --bets) {
        const auto betClass = size_t(random.bounded(int(model::Classes.size())));
        step.ticket.add(betClass, digits(model::Classes[betClass].digits),
                        random.bounded(1, int(HighestAmount)));
    }
    if (discounted || random.bounded(2) == 1)
        step.discount = random.bounded(1, int(HighestAmount));
    step.line = random.generate();
    step.part = random.generate();
    return step;
}

void Step::perform(const std::function<void()> &done) const
{
    switch (kind) {
    case File:
        return saveTicket(*this, done);
    case Cut:
        cutLine(*this);
        break;
    case Check:
        checkDraw(result);
        break;
    case Close:
        closeAndRestart();
    }
    done();
}

void Step::perform(model::Book &book, const std::function<void(bool isDone)> &passed) const
{
    const auto between = [&] { passed(false); };
    switch (kind) {
    case File:
        for (const model::Bet &bet : ticket.inOrderOfSaving()) {
            book.file(customer, bet, between);
            passed(true);
        }
        if (discount == 0)
            return;
        book.addDiscount(discount);
        break;
    case Cut: {
        if (book.lines.empty())
            break;
        const auto chosen = std::next(book.lines.begin(), line % book.lines.size());
        book.cut(chosen->first, partOf(chosen->second.amount), between);
        break;
    }
    case Check:
        book.check(result);
        break;
    case Close:
        book.close(between);
    }
    passed(true);
}

QStringList ledgerRows(Connection &ledger)
{
    const QString line =
        u"NPK, NameFK, num23, updown, numType, numValue, numBuy, nuser FROM tblNumber"_s;
    const QString result = u"num3up, num3down1, num3down2, num3down3, num3down4, num2down,"
                           " moneyup, moneydown FROM "_s;
    QStringList rows;
    for (
        const QString &columns :
        {u"'customer', MPK, Mname, Mpercen, Mber FROM tblMember ORDER BY MPK"_s,
         u"'line', "_s + line + u" ORDER BY NPK"_s, u"'cut', "_s + line + u"Cut ORDER BY NPK"_s,
         u"'discount', PK, rMoney FROM tblRMoney ORDER BY PK"_s,
         u"'hot', Fnumber FROM tblNumberFix ORDER BY PK"_s,
         u"'rates', [3up], [3tod], [2up], [2tod], runup, [3down], [2down], rundown FROM tblMoney"_s,
         u"'result', "_s + result + u"tblTrue"_s,
         u"'draw', "_s + result + u"tblNumLog ORDER BY PK"_s}) {
        for (const QVariantList &row : ledger.run(u"SELECT "_s + columns).rows) {
            QStringList fields;
            for (const QVariant &field : row)
                fields += field.toString();
            rows += fields.join(u' ');
        }
    }
    return rows;
}
