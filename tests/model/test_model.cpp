// SPDX-License-Identifier: MIT
// The model of the trade against the draws of the tour, whose figures were worked out elsewhere:
// what is entered there has to lead to all other lines of the file.
#include "model/trade.h"
#include "support/same.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Facts = QMap<QString, QStringList>;
const QRegularExpression Begin(u"^"_s);

QString captionOf(size_t betClass)
{
    return QString::fromUtf16(model::Classes[betClass].caption) + u'|';
}

struct Draw
{
    /// Does what a line of the file says, and collects what follows from it.
    void play(const QString &verb, const QStringList &words)
    {
        if (verb == u"member"_s)
            book.customers[book.customer(words[0])] = {words[0], words[2], words[1]};
        else if (verb == u"hot"_s)
            book.hot += words[0];
        else if (verb == u"line"_s)
            facts[verb] +=
                words.first(ticket.key(words[0], words[1]) ? 2 : words.size()).join(u'|');
        else if (verb == u"ticket"_s)
            customer = words[0];
        else if (verb == u"total"_s)
            save();
        else if (verb == u"book"_s)
            list();
        else if (verb == u"result"_s) {
            facts[u"win"_s] = book.check(words[0]).replaceInStrings(u" hot"_s, u""_s);
            facts[u"settle"_s] += facts[u"win"_s].takeLast();
        }
    }

    void save()
    {
        const int percent = book.customers[book.customer(customer)].percent.toInt();
        const qint64 discount = model::discountOn(ticket.total(), percent);
        facts[u"total"_s] += model::baht(ticket.total()) + u'|' + model::baht(discount);
        for (size_t at = 0; at < model::Classes.size(); ++at)
            facts[u"row"_s] += ticket.rows(at).replaceInStrings(Begin, captionOf(at));
        for (const model::Bet &bet : ticket.inOrderOfSaving())
            book.file(customer, bet);
        ticket = {};
    }

    void list()
    {
        for (size_t at = 0; at < model::Classes.size(); ++at) {
            QStringList rows = book.board(at).replaceInStrings(u" "_s, u"|"_s);
            const QString head = rows.takeFirst();
            facts[u"board"_s] += captionOf(at) + QString::number(rows.size()) + u'|' + head;
            facts[u"heavy"_s] +=
                rows.first(qMin(5, rows.size())).replaceInStrings(Begin, captionOf(at));
        }
        for (const bool top : {true, false}) {
            for (const QString &row : book.scan(top))
                facts[u"risk"_s] += (top ? u"บน|"_s : u"ล่าง|"_s) + row.section(u'|', 0, 1) + u'|'
                                    + row.section(u'|', 3, 3).chopped(1);
        }
    }

    model::Book book{};
    model::Ticket ticket{};
    QString customer{};
    Facts facts{};
};

} // namespace

int main(int argc, char **argv)
{
    for (int at = 1; at < argc; ++at) {
        QFile file(QString::fromLocal8Bit(argv[at]));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", argv[at]);
        Draw draw;
        Facts stated;
        for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            const QStringList words = line.split(u'\t');
            stated[words[0]] += words.sliced(1).join(u'|');
            draw.play(words[0], words.sliced(1));
        }
        for (const QString &verb :
             QString(u"line total row board heavy risk win settle"_s).split(u' ')) {
            if (verb == u"risk"_s || verb == u"win"_s) { // in another order
                draw.facts[verb].sort();
                stated[verb].sort();
            }
            same(verb, draw.facts[verb], stated[verb]);
        }
    }
}
