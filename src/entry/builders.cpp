// SPDX-License-Identifier: MIT
#include "entry/builders.h"

#include "entry/digitorders.h"
#include "entry/keyedline.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

namespace {

/// Indexes of the ticket's grids, in the order of BetClasses.
enum Grid { Top3, Tod3, Top2, Tod2, TopRun, Bottom3, Bottom2, BottomRun, NoGrid };

/// Grids that a number of one length is written to, in this order.
struct Targets
{
    Grid first = NoGrid;
    Grid second = NoGrid;
};

/// Describes a builder that writes one number with one amount. The length of the number as keyed,
/// not trimmed, selects the targets. Nothing is written for a length without targets.
struct SingleLine
{
    unsigned checks = 0;
    bool showTopTab = false;
    std::array<Targets, 3> targetsByLength; ///< for 1, 2 and 3 characters
};

constexpr unsigned Multi = NumberGiven | AtLeastTwoDigits | AtMostThreeDigits | AmountGood;
constexpr unsigned Single = NumberGiven | OneDigit | AmountGood;

constexpr SingleLine TongUp{Multi, true, {{{}, {Top2}, {Top3}}}};
constexpr SingleLine TongDown{Multi, false, {{{}, {Bottom2}, {Bottom3}}}};
constexpr SingleLine TodUp{Multi | DigitsDiffer, true, {{{}, {Tod2}, {Tod3}}}};
constexpr SingleLine TongTod{Multi | DigitsDiffer, true, {{{}, {Top2, Tod2}, {Top3, Tod3}}}};
constexpr SingleLine RunUp{Single, true, {{{TopRun}, {}, {}}}};
constexpr SingleLine RunDown{Single, false, {{{BottomRun}, {}, {}}}};
// Accepts one digit as well as two or three. Shows the top tab although the bottom is written
// first.
constexpr SingleLine DownAndUp{NumberGiven | AtMostThreeDigits | AmountGood,
                               true,
                               {{{BottomRun, TopRun}, {Bottom2, Top2}, {Bottom3, Top3}}}};

void addSingleLine(Ticket &ticket, const SingleLine &builder)
{
    if (!passesChecks(ticket, builder.checks))
        return;
    ticket.ShowTopTab = builder.showTopTab;
    const auto length = ticket.KeyedNumber.size();
    if (length < 1 || length > 3)
        return;
    const Targets &targets = builder.targetsByLength[length - 1];
    if (targets.first != NoGrid)
        ticket.AddLine(targets.first, ticket.KeyedNumber, ticket.KeyedAmount, 0);
    if (targets.second != NoGrid)
        ticket.AddLine(targets.second, ticket.KeyedNumber, ticket.KeyedAmount, 1);
}

void addTurned(Ticket &ticket, bool top)
{
    if (!passesChecks(ticket, Multi | DigitsDiffer | TryAmountGood))
        return;
    ticket.ShowTopTab = top;
    const QString &number = ticket.KeyedNumber;
    if (number.size() != 2 && number.size() != 3)
        return;
    const Grid grid = number.size() == 3 ? (top ? Top3 : Bottom3) : (top ? Top2 : Bottom2);
    const QStringList orders = turnedOrders(number);
    for (qsizetype at = 0; at < orders.size(); ++at)
        ticket.FoundRow[size_t(at)] = ticket.grids[grid].searchColumn(NumberColumn, orders[at]);
    for (qsizetype at = 0; at < orders.size(); ++at)
        ticket.writeLine(grid, ticket.FoundRow[size_t(at)], orders[at],
                         at == 0 ? ticket.KeyedAmount : ticket.KeyedTryAmount);
}

} // namespace

void tongup(Ticket &ticket)
{
    addSingleLine(ticket, TongUp);
}

void tongdown(Ticket &ticket)
{
    addSingleLine(ticket, TongDown);
}

void todup(Ticket &ticket)
{
    addSingleLine(ticket, TodUp);
}

void runup(Ticket &ticket)
{
    addSingleLine(ticket, RunUp);
}

void rundown(Ticket &ticket)
{
    addSingleLine(ticket, RunDown);
}

void tongtod(Ticket &ticket)
{
    addSingleLine(ticket, TongTod);
}

void downAndup(Ticket &ticket)
{
    addSingleLine(ticket, DownAndUp);
}

void kubup(Ticket &ticket)
{
    addTurned(ticket, true);
}

void kubdown(Ticket &ticket)
{
    addTurned(ticket, false);
}

void numpato(Ticket &ticket, BetKind kind)
{
    if (!passesChecks(ticket, Single))
        return;
    if (kind != BetKind::DoorsTop && kind != BetKind::DoorsBottom)
        return;
    ticket.ShowTopTab = kind == BetKind::DoorsTop;
    const Grid grid = ticket.ShowTopTab ? Top2 : Bottom2;
    const QString &door = ticket.KeyedNumber;
    for (int other = 0; other <= 9; ++other)
        ticket.AddLine(grid, door + QString::number(other), ticket.KeyedAmount);
    for (int other = 0; other <= 9; ++other) {
        if (other != CInt(door)) // the first loop has written the double
            ticket.AddLine(grid, QString::number(other) + door, ticket.KeyedAmount);
    }
}

void soonkow(Ticket &ticket, BetKind kind)
{
    if (!passesChecks(ticket, NoNumber | AmountGood))
        return;
    if (kind != BetKind::SweepTop && kind != BetKind::SweepBottom)
        return;
    ticket.ShowTopTab = kind == BetKind::SweepTop;
    const Grid grid = ticket.ShowTopTab ? Top2 : Bottom2;
    for (const QChar digit : u"0123456789"_s)
        ticket.AddLine(grid, QString(2, digit), ticket.KeyedAmount);
}

void runBuilder(Ticket &ticket, BetKind kind)
{
    switch (kind) {
    case BetKind::Top:
        return tongup(ticket);
    case BetKind::TodKind:
        return todup(ticket);
    case BetKind::Bottom:
        return tongdown(ticket);
    case BetKind::RunTop:
        return runup(ticket);
    case BetKind::RunBottom:
        return rundown(ticket);
    case BetKind::StraightAndTod:
        return tongtod(ticket);
    case BetKind::TopAndBottom:
        return downAndup(ticket);
    case BetKind::TurnTop:
        return kubup(ticket);
    case BetKind::TurnBottom:
        return kubdown(ticket);
    case BetKind::DoorsTop:
    case BetKind::DoorsBottom:
        return numpato(ticket, kind);
    case BetKind::SweepTop:
    case BetKind::SweepBottom:
        return soonkow(ticket, kind);
    case BetKind::NoKind:
        return;
    }
}
