// SPDX-License-Identifier: MIT
#include "script/script.h"

#include "script/verbs.h"
#include "tour/drawfile.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

struct Line
{
    int number;
    QString text;
    QString origin; ///< line of the draw that it plays
};

[[noreturn]] void refuseScript(const QString &path, int line, const QString &reason)
{
    qFatal("%s:%d: %s", qUtf8Printable(path), line, qUtf8Printable(reason));
}

QList<QRegularExpressionMatch> matchesOf(const QString &text)
{
    static const QRegularExpression word(uR"("(?:[^"\\]|\\.)*"|\S+)"_s);
    QList<QRegularExpressionMatch> matches;
    for (const auto &match : word.globalMatch(text))
        matches += match;
    return matches;
}

QString withoutQuotes(const QString &word)
{
    return word.startsWith(u'"') ? word.sliced(1).chopped(1) : word;
}

/// @p text with the words of @p row for $1, $2 ... Within other words they lose their quotes.
QString filledIn(QString text, const QString &row)
{
    const auto words = matchesOf(row);
    const auto parts = matchesOf(text);
    for (auto part = parts.crbegin(); part != parts.crend(); ++part) {
        QString filled = part->captured();
        for (qsizetype at = words.size(); at > 0; --at) {
            const QString name = u'$' + QString::number(at);
            const QString word = words[at - 1].captured();
            filled.replace(name, part->captured() == name ? word : withoutQuotes(word));
        }
        text.replace(part->capturedStart(), part->capturedLength(), filled);
    }
    return text;
}

/// The lines that say something. One that begins with "/" goes on with the line before.
QList<Line> readLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    QList<Line> lines;
    int number = 0;
    for (const QString &read : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString text = read.trimmed();
        ++number;
        if (text.startsWith(u"/ "_s) && !lines.isEmpty())
            lines.last().text += u' ' + text;
        else if (!text.isEmpty() && !text.startsWith(u'#'))
            lines += {number, text, {}};
    }
    return lines;
}

/// Puts the steps of "each", of "play" and of verbs made by "to" in their places.
class Expansion
{
public:
    explicit Expansion(const QString &path) : m_folder(QFileInfo(path).path() + u'/')
    {
        expand(readLines(path));
    }

    QList<Line> lines;

private:
    /// The lines from @p at to their "end".
    static QList<Line> takeBody(const QList<Line> &from, qsizetype &at)
    {
        QList<Line> body;
        for (int open = 1; ++at < from.size(); body += from[at]) {
            const QString verb = from[at].text.section(u' ', 0, 0);
            open += verb == u"each"_s || verb == u"to"_s ? 1 : verb == u"end"_s ? -1 : 0;
            if (open == 0)
                break;
        }
        return body;
    }

    void expand(const QList<Line> &from, const QString &words = {}, const QString &origin = {})
    {
        for (qsizetype at = 0; at < from.size(); ++at) {
            const Line line{from[at].number, filledIn(from[at].text, words), origin};
            const QString verb = line.text.section(u' ', 0, 0);
            const QString rest = line.text.mid(verb.size() + 1);
            if (verb == u"to"_s) {
                m_made[rest] = takeBody(from, at);
            } else if (verb == u"each"_s) {
                const QList<Line> body = takeBody(from, at);
                for (const QString &row : rowsOf(rest))
                    expand(body, row, origin);
            } else if (verb == u"play"_s) {
                for (const DrawFact &fact : readDraw(m_folder + wordsOf(rest).value(0)))
                    if (wordsOf(rest).contains(fact.text.section(u' ', 0, 0)))
                        expand({{line.number, fact.text, {}}}, {}, fact.place);
            } else if (m_made.contains(verb)) {
                expand(m_made[verb], rest, origin);
            } else {
                lines += line;
            }
        }
    }

    QString m_folder;
    QHash<QString, QList<Line>> m_made;
};

/// The keys of "<F5>" are one step, and so is each character of other words.
void addKeys(QList<Step> &steps, const Step &line, const QStringList &words)
{
    static const QRegularExpression named(uR"(^(<.+>)(?:\*(\d+))?$)"_s);
    for (const QString &word : words) {
        const auto key = named.match(word);
        const QStringList keys =
            key.hasMatch() ? QStringList(qMax(1, key.captured(2).toInt()), key.captured(1))
                           : word.split(QString(), Qt::SkipEmptyParts);
        for (const QString &each : keys)
            steps += {line.line, u"key"_s, each, {each}, line.text};
    }
}

void addStep(QList<Step> &steps, const Step &step)
{
    if (step.verb != u"key"_s)
        steps += step;
    if (step.verb == u"key"_s)
        addKeys(steps, step, step.words);
    else if (step.verb == u"at"_s)
        addKeys(steps, step, step.words.mid(2));
    else if (step.verb == u"type"_s)
        addKeys(steps, step,
                step.words.value(1).isEmpty() ? QStringList(u"<Backspace>"_s) << step.words.mid(2)
                                              : step.words.mid(1));
}

} // namespace

QStringList wordsOf(const QString &text)
{
    QStringList words;
    for (const auto &match : matchesOf(text)) {
        const QString word = match.captured();
        words += word.startsWith(u'"') ? withoutQuotes(word)
                                             .replace(u"\\n"_s, u"\n"_s)
                                             .replace(u"\\t"_s, u"\t"_s)
                                             .replace(u"\\\""_s, u"\""_s)
                                       : word;
    }
    return words;
}

QStringList rowsOf(const QString &text)
{
    QStringList rows;
    for (const QString &row : text.split(u" / "_s))
        rows += row.trimmed();
    return text == u"none"_s ? QStringList() : rows;
}

QList<Case> readScript(const QString &path)
{
    QList<Step> before;
    QList<Case> cases;
    for (const Line &line : Expansion(path).lines) {
        const QString verb = line.text.section(u' ', 0, 0);
        const QString rest = line.text.mid(verb.size() + 1);
        if (verb == u"case"_s)
            cases += {rest, before};
        else if (!findVerb(verb))
            refuseScript(path, line.number, u"no verb "_s + verb);
        else
            addStep(cases.isEmpty() ? before : cases.last().steps,
                    {line.number, verb, rest, wordsOf(rest), line.text + line.origin});
    }
    if (cases.isEmpty())
        refuseScript(path, 1, u"no case"_s);
    return cases;
}
