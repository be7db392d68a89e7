// SPDX-License-Identifier: MIT
#include "tour/drawfile.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

Draw Draw::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    Draw draw;
    QTextStream text(&file);
    for (QString line; text.readLineInto(&line);) {
        if (line.startsWith(u'#'))
            continue;
        const QStringList part = line.split(u'\t');
        const QString what = part.value(0);
        if (what == u"member"_s)
            draw.members += {part.value(1), part.value(2), part.value(3)};
        else if (what == u"hot"_s)
            draw.hotNumbers += part.value(1);
        else if (what == u"ticket"_s)
            draw.tickets += DrawTicket{part.value(1), {}, {}, {}, {}};
        else if (what == u"line"_s)
            draw.tickets.last().lines += {part.value(1), part.value(2), part.value(3)};
        else if (what == u"row"_s)
            draw.tickets.last().rows += part.mid(1).join(u'\t');
        else if (what == u"board"_s)
            draw.boards +=
                DrawBoard{part.value(1), part.value(2), part.value(3), part.value(4), {}};
        else if (what == u"heavy"_s)
            draw.boards.last().heavy += part.mid(2).join(u'\t');
        else if (what == u"risk"_s)
            draw.risks += DrawRisk{part.value(1), part.mid(2).join(u'\t')};
        else if (what == u"book"_s)
            draw.book = part.mid(1).join(u'\t');
        else if (what == u"result"_s)
            draw.result = part.value(1);
        else if (what == u"win"_s)
            draw.winners += part.mid(1).join(u'\t');
        else if (what == u"settle"_s) {
            draw.payout = part.value(1);
            draw.profit = part.value(2);
        } else if (what == u"total"_s) {
            draw.tickets.last().total = part.value(1);
            draw.tickets.last().discount = part.value(2);
        }
    }
    return draw;
}
