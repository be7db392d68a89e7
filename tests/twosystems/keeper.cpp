// SPDX-License-Identifier: MIT
// Works on a book and prints all that it holds then: the same program on both systems, so that the
// output of one can be compared with that of the other.
// Usage: keeper FOLDER EARLIER [NOW]. Each turn is a number, its seed, and a letter: "k" keeps
// the book open to the end, "l" leaves it as a killed process does, with the WAL beside it, "w"
// wipes it first. The turn NOW is done and the book compared with a model of all turns. EARLIER
// lists those before it, parted by commas.
#include "desktop/clock.h"
#include "desktop/msgbox.h"
#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "model/step.h"
#include "settings/closing.h"
#include "settings/hotnumberlist.h"
#include "settings/rates.h"
#include "support/boxscript.h"
#include "support/outcome.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// The wipe ends the program, so the Ledger is opened again.
void wipe()
{
    const BoxScript yes({BoxAnswer::Ok, BoxAnswer::Ok});
    if (endStatus(wipeLedger) != 0)
        qFatal("the program did not end with the wipe");
    ConnectLedger();
}

/// A turn: a draw that is closed, then one that is not, so that in the end no table is empty.
/// Done to the model alone unless @p now.
void work(model::Book &book, const QString &turn, bool now)
{
    if (turn.endsWith(u'w')) {
        book.wipe();
        if (now)
            wipe();
    }
    QRandomGenerator random(turn.chopped(1).toUInt());
    RateTexts rates;
    for (size_t at = 0; at < rates.size(); ++at) {
        book.rates[at] = random.bounded(1, 900);
        rates[at] = QString::number(book.rates[at]);
    }
    if (now)
        writeRates(rates);
    for (const auto last : {Step::Close, Step::Check}) {
        std::vector kinds(12, Step::File);
        kinds.insert(kinds.end(), {Step::Cut, Step::Cut, Step::Check, last});
        book.hot += QString::number(random.bounded(10, 1000));
        if (now)
            addHotNumber(book.hot.last());
        for (const auto kind : kinds) {
            // Thai and Latin, which the two systems would list in two orders by themselves.
            const std::array names{u"เก๋"_s,     u"น้ำผึ้ง"_s, u"ไก่ ป้าญู"_s, u"ลูกค้า ก"_s,
                                   u"ลูกค้า b"_s, u"Lek"_s,  u"เล็ก"_s,    u"-"_s};
            Step step = Step::random(kind, random, 20, true);
            step.customer = names[random.bounded(quint32(names.size()))];
            step.perform(book);
            if (now)
                step.perform();
        }
    }
}

void print(const QString &statement)
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
    model::Book book;
    for (const QString &turn : arguments.value(2).split(u',', Qt::SkipEmptyParts))
        work(book, turn, false);
    const QString now = arguments.value(3);
    if (!now.isEmpty())
        work(book, now, true);
    const QStringList found = ledgerRows(*LedgerConnection);
    const QStringList expected = book.rows();
    for (qsizetype at = 0; at < std::max(found.size(), expected.size()); ++at) {
        if (found.value(at) != expected.value(at))
            qFatal("row %d is %s and not %s", int(at), qUtf8Printable(found.value(at)),
                   qUtf8Printable(expected.value(at)));
    }
    print(u"PRAGMA integrity_check"_s);
    const QString tables = u"SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"_s;
    for (const QVariantList &table : LedgerConnection->run(tables).rows)
        print(u"SELECT '%1', * FROM %1 ORDER BY 2"_s.arg(table[0].toString()));
    print(u"SELECT Mname FROM tblMember ORDER BY Mname COLLATE ThaiOrder"_s);
    std::fflush(stdout);
    if (now.endsWith(u'l'))
        std::_Exit(0);
    CloseLedger();
    return 0;
}
