// SPDX-License-Identifier: MIT
// Keeps a book for a while and tells all that stands in it: the same program on both systems, so
// that what one keyed can be held against what the other reads.
// Usage: keeper FOLDER SEED [leave|wipe]. Works on the book as follows from SEED, not at all for 0.
// "leave" ends as a killed process does, with the WAL still beside the book; "wipe" wipes it first.
#include "desktop/clock.h"
#include "desktop/msgbox.h"
#include "desktop/programfolder.h"
#include "entry/save.h"
#include "faults/daybook.h"
#include "ledger/ledger.h"
#include "settings/closing.h"
#include "settings/hotnumberlist.h"
#include "settings/rates.h"
#include "support/boxscript.h"
#include "support/noprogress.h"
#include "support/outcome.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void fileTickets(QRandomGenerator &random)
{
    constexpr int Tickets = 12;
    NoProgress progress;
    for (int number = 0; number < Tickets; ++number) {
        Ticket ticket;
        for (int line = 0; line < 20; ++line) {
            const int grid = random.bounded(ClassCount);
            const int digits = BetClasses[size_t(grid)].num23;
            const QString all = QString::number(1000 + random.bounded(1000));
            ticket.AddLine(grid, all.right(digits), QString::number(random.bounded(1, 99'999)));
        }
        // Thai and Latin, which the two systems would list in two orders by themselves.
        const std::array names{u"เก๋"_s,     u"น้ำผึ้ง"_s, u"ไก่ ป้าญู"_s, u"ลูกค้า ก"_s,
                               u"ลูกค้า b"_s, u"Lek"_s,  u"เล็ก"_s,    u"-"_s};
        saveLines(ticket, names[size_t(random.bounded(int(names.size())))], progress);
        saveDiscount(QString::number(random.bounded(1, 999)));
    }
}

/// A draw that is closed, then one that is not: in the end no table is empty.
void workOn(quint32 seed)
{
    QRandomGenerator random(seed);
    RateTexts rates;
    for (QString &rate : rates)
        rate = QString::number(random.bounded(1, 900));
    writeRates(rates);
    for (const auto last : {Step::Close, Step::Check}) {
        fileTickets(random);
        addHotNumber(QString::number(random.bounded(10, 1000)));
        for (const auto kind : {Step::Cut, Step::Cut, Step::Check, last})
            Step(kind, random, true).perform([] {});
    }
}

/// The wipe ends the program, so the Ledger is opened once more.
void wipe()
{
    const BoxScript yes({BoxAnswer::Ok, BoxAnswer::Ok});
    if (endStatus(wipeLedger) != 0)
        qFatal("the program did not end with the wipe");
    ConnectLedger();
}

void tell(const QString &statement)
{
    for (const QVariantList &row : LedgerConnection->run(statement).rows) {
        QStringList fields;
        for (const QVariant &field : row)
            fields += field.toString();
        // By the byte, since one of the systems would end each line in its own way.
        const QByteArray line = fields.join(u'|').toUtf8() + ' ';
        std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    setBoxShower([](const Box &box) {
        std::fputs(qUtf8Printable(box.text), stderr);
        return BoxAnswer::Cancel;
    });
    setProgramFolder(arguments.value(1));
    ConnectLedger();
    CurrentUser = u"sv"_s;
    setClock([] { return QDateTime({2026, 11, 22}, {9, 5}); });
    const quint32 seed = arguments.value(2).toUInt();
    if (arguments.value(3) == u"wipe"_s)
        wipe();
    if (seed != 0)
        workOn(seed);
    tell(u"PRAGMA integrity_check"_s);
    const QString tables = u"SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"_s;
    for (const QVariantList &table : LedgerConnection->run(tables).rows)
        tell(u"SELECT '%1', * FROM %1 ORDER BY 2"_s.arg(table[0].toString()));
    tell(u"SELECT Mname FROM tblMember ORDER BY Mname COLLATE ThaiOrder"_s);
    std::fflush(stdout);
    if (arguments.value(3) == u"leave"_s)
        std::_Exit(0);
    CloseLedger();
    return 0;
}
