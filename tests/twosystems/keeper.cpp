// SPDX-License-Identifier: MIT
// Keeps a book for a while and tells all that stands in it: the same program on both systems, so
// that what one keyed can be held against what the other reads.
// Usage: keeper FOLDER SEED [leave]. Files tickets that follow from SEED, none for 0; "leave" ends
// as a killed process does, with the journal still beside the book.
#include "entry/save.h"
#include "ledger/ledger.h"
#include "platform/msgbox.h"
#include "platform/programfolder.h"
#include "support/noprogress.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void fileTickets(quint32 seed)
{
    constexpr int Tickets = 12;
    QRandomGenerator random(seed);
    NoProgress progress;
    for (int number = 0; number < Tickets; ++number) {
        Ticket ticket;
        for (int line = 0; line < 20; ++line) {
            const int grid = random.bounded(ClassCount);
            const int digits = BetClasses[size_t(grid)].num23;
            const QString all = QString::number(1000 + random.bounded(1000));
            ticket.AddLine(grid, all.right(digits), QString::number(random.bounded(1, 99'999)));
        }
        // Thai names alone: whether Latin ones stand before or behind them, each system has its way.
        const std::array names{u"เก๋"_s, u"น้ำผึ้ง"_s, u"แก้ว"_s, u"ไก่ ป้าญู"_s, u"เล็ก"_s, u"-"_s};
        saveLines(ticket, names[size_t(random.bounded(int(names.size())))], progress);
        saveDiscount(QString::number(random.bounded(1, 999)));
    }
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
    const quint32 seed = arguments.value(2).toUInt();
    if (seed != 0)
        fileTickets(seed);
    tell(u"PRAGMA integrity_check"_s);
    tell(u"SELECT * FROM tblNumber ORDER BY NPK"_s);
    tell(u"SELECT * FROM tblRMoney ORDER BY PK"_s);
    tell(u"SELECT * FROM tblMember ORDER BY Mname COLLATE ThaiOrder"_s);
    std::fflush(stdout);
    if (arguments.value(3) == u"leave"_s)
        std::_Exit(0);
    CloseLedger();
    return 0;
}
