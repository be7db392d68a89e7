// SPDX-License-Identifier: MIT
#include "tour/drawfile.h"

#include "entry/voice.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The labels of the estimates, in the order of the boards.
constexpr std::array EstimateLabels{"Label31", "Label1",  "Label5",  "Label4",
                                    "Label8",  "Label13", "Label12", "Label9"};

using Lines = QList<QStringList>;

/// A hot number stands for all orders of its digits.
bool isHot(const Lines &lines, const QString &number)
{
    return std::ranges::any_of(lines, [&](const QStringList &line) {
        return line[0] == u"hot"_s && std::ranges::is_permutation(line[1], number);
    });
}

/// The lines of @p kind behind line @p at, their fields from @p first on, as a script writes the rows
/// of a grid. With a caption only those that begin with it.
QString rowsBehind(const Lines &lines, qsizetype at, const QString &kind, int first,
                   const QString &caption = {})
{
    QStringList rows;
    while (++at < lines.size() && lines[at][0] == kind) {
        QStringList cells;
        for (const QString &cell : lines[at].sliced(first))
            cells += cell.trimmed();
        if (kind == u"risk"_s)
            cells.last() += u'%';
        if (kind == u"win"_s && isHot(lines, cells[1]))
            cells.last() += u" hot"_s;
        if (caption.isEmpty() || lines[at][1] == caption)
            rows += cells.join(u'|').replace(u"|hot"_s, u" hot"_s);
    }
    return rows.isEmpty() ? u"none"_s : rows.join(u" / "_s);
}

/// The function key of a kind; the tod has none.
QString keyOf(const QString &caption)
{
    const auto *key = std::ranges::find(KindKeys, kindOfCaption(caption), &KindKey::kind);
    return u'<' + QString::fromLatin1(key->keys[key->kind == BetKind::TodKind ? 1 : 0]) + u'>';
}

} // namespace

QList<DrawFact> readDraw(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    Lines lines;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n'))
        lines += line.split(u'\t');

    QList<DrawFact> facts;
    QString customer;
    QString betKind;
    QString digits;
    QString winners;
    int tickets = 0;
    size_t boards = 0;
    for (qsizetype at = 0; at < lines.size(); ++at) {
        const QString kind = lines[at][0];
        QStringList words = lines[at].sliced(1);
        const auto add = [&](const QString &verb, const QStringList &with) {
            facts += {verb + u" \""_s + with.join(u"\" \""_s) + u'"',
                      u" (%1:%2)"_s.arg(QFileInfo(path).fileName()).arg(at + 1)};
        };
        if (kind == u"member"_s || kind == u"hot"_s) {
            add(kind, words);
        } else if (kind == u"book"_s) {
            add(kind, words.replaceInStrings(u","_s, QString()));
        } else if (kind == u"ticket"_s) {
            customer = words[0];
        } else if (kind == u"line"_s) {
            if (betKind != words[0])
                add(u"kind"_s, {words[0], keyOf(words[0])});
            betKind = words[0];
            add(u"line"_s, {words[1]});
            if (words.size() == 3)
                add(u"refused"_s, {words[2]});
        } else if (kind == u"total"_s) {
            add(u"customer"_s, {customer, words[0], words.value(1)});
            for (int grid = 1; const BetClass &each : BetClasses)
                add(u"rows"_s, {QString::number(grid++),
                                rowsBehind(lines, at, u"row"_s, 2, each.caption.toString())});
            add(u"ticket"_s, {QString::number(++tickets)});
        } else if (kind == u"board"_s) {
            words.insert(3, QLatin1String(EstimateLabels[boards]));
            words.prepend(QString::number(++boards));
            add(kind, words << rowsBehind(lines, at, u"heavy"_s, 2));
        } else if (kind == u"risk"_s && lines[at - 1][0] != kind) {
            add(kind, {rowsBehind(lines, at - 1, kind, 2, u"บน"_s),
                       rowsBehind(lines, at - 1, kind, 2, u"ล่าง"_s)});
        } else if (kind == u"result"_s) {
            digits = words[0];
            winners = rowsBehind(lines, at, u"win"_s, 1);
        } else if (kind == u"settle"_s) {
            add(u"result"_s, QStringList{digits, winners} << words);
            const QString bottoms =
                QStringList{digits.mid(3, 3), digits.mid(6, 3), digits.mid(9, 3), digits.mid(12, 3)}
                    .join(u"  ,  "_s);
            add(u"history"_s, words << digits.first(3) << bottoms << digits.last(2));
        }
    }
    return facts;
}
