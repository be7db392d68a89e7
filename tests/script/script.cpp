// SPDX-License-Identifier: MIT
#include "script/script.h"

#include "script/verbs.h"

#include <QFile>
#include <QRegularExpression>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct Line
{
    int number;
    QString text;
};

[[noreturn]] void refuseScript(const QString &path, int line, const QString &reason)
{
    qFatal("%s:%d: %s", qUtf8Printable(path), line, qUtf8Printable(reason));
}

const QRegularExpression &rawWord()
{
    static const QRegularExpression word(uR"("(?:[^"\\]|\\.)*"|\S+)"_s);
    return word;
}

QStringList rawWordsOf(const QString &text)
{
    QStringList words;
    for (const auto &match : rawWord().globalMatch(text))
        words += match.captured();
    return words;
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
            lines += {number, text};
    }
    return lines;
}

/// @p text with @p words for $1, $2 ... Within other words they lose their quotes.
QString filledIn(QString text, const QStringList &words)
{
    QList<QRegularExpressionMatch> parts;
    for (const auto &match : rawWord().globalMatch(text))
        parts.prepend(match);
    for (const auto &match : std::as_const(parts)) {
        QString part = match.captured();
        for (qsizetype at = words.size(); at > 0; --at) {
            const QString name = u'$' + QString::number(at);
            const QString &word = words[at - 1];
            const bool quoted = word.startsWith(u'"') && part != name;
            part.replace(name, quoted ? word.sliced(1).chopped(1) : word);
        }
        text.replace(match.capturedStart(), match.capturedLength(), part);
    }
    return text;
}

/// Repeats the lines between "each ROWS" and "end" for each row, whose words stand for $1, $2 ...
QList<Line> repeatLines(const QString &path, const QList<Line> &lines)
{
    QList<Line> repeated;
    QStringList rows;
    qsizetype first = -1;
    for (const Line &line : lines) {
        if (line.text.startsWith(u"each "_s)) {
            first = repeated.size();
            rows = rowsOf(line.text.sliced(5));
        } else if (line.text == u"end"_s && first >= 0) {
            const QList<Line> body = repeated.sliced(std::exchange(first, -1));
            repeated.resize(repeated.size() - body.size());
            for (const QString &row : std::as_const(rows)) {
                const QStringList words = rawWordsOf(row);
                for (const Line &each : body)
                    repeated += {each.number, filledIn(each.text, words)};
            }
        } else {
            repeated += line;
        }
    }
    if (first >= 0)
        refuseScript(path, lines.last().number, u"\"each\" without \"end\""_s);
    return repeated;
}

/// The keys of "<F5>" are one step, and so is each character of other words.
void addKeys(QList<Step> &steps, const Step &line, const QStringList &words)
{
    static const QRegularExpression named(uR"(^<(.+)>(?:\*(\d+))?$)"_s);
    for (const QString &word : words) {
        if (const auto key = named.match(word); key.hasMatch()) {
            for (int left = qMax(1, key.captured(2).toInt()); left > 0; --left)
                steps += {line.line, u"key"_s, u'<' + key.captured(1) + u'>', line.text};
        } else {
            for (const QChar letter : word)
                steps += {line.line, u"key"_s, letter, line.text};
        }
    }
}

void addStep(QList<Step> &steps, const Step &step)
{
    const QStringList words = wordsOf(step.rest);
    if (step.verb == u"key"_s) {
        addKeys(steps, step, words);
    } else if (step.verb == u"at"_s) {
        steps += step;
        addKeys(steps, step, words.mid(2));
    } else if (step.verb == u"type"_s) {
        steps += step;
        if (words.value(1).isEmpty())
            addKeys(steps, step, {u"<Backspace>"_s});
        addKeys(steps, step, words.mid(1));
    } else {
        steps += step;
    }
}

/// The program starts before the first step that needs it, and again behind its end.
QList<Step> withStarts(const QList<Step> &steps)
{
    QList<Step> all;
    bool runs = false;
    for (const Step &step : steps) {
        if (!runs && findVerb(step.verb)->has(NeedsProgram))
            all += {step.line, u"start"_s, {}, step.text};
        runs = (runs || findVerb(step.verb)->has(NeedsProgram) || step.verb == u"start"_s)
               && step.verb != u"ends"_s;
        all += step;
    }
    return all;
}

} // namespace

QStringList wordsOf(const QString &text)
{
    QStringList words;
    for (QString word : rawWordsOf(text)) {
        if (word.size() > 1 && word.startsWith(u'"') && word.endsWith(u'"')) {
            word = word.sliced(1).chopped(1);
            word.replace(u"\\n"_s, u"\n"_s).replace(u"\\\""_s, u"\""_s);
        }
        words += word;
    }
    return words;
}

QStringList rowsOf(const QString &text)
{
    return text.split(u" / "_s);
}

QList<Case> readScript(const QString &path)
{
    QList<Step> before;
    QList<Case> cases;
    for (const Line &line : repeatLines(path, readLines(path))) {
        const QString verb = line.text.section(u' ', 0, 0);
        const QString rest = line.text.mid(verb.size() + 1).trimmed();
        if (verb == u"case"_s) {
            cases += {rest, before};
            continue;
        }
        if (!findVerb(verb))
            refuseScript(path, line.number, u"no verb "_s + verb);
        addStep(cases.isEmpty() ? before : cases.last().steps,
                {line.number, verb, rest, line.text});
    }
    if (cases.isEmpty())
        refuseScript(path, 1, u"no case"_s);
    for (Case &each : cases)
        each.steps = withStarts(each.steps);
    return cases;
}
