// SPDX-License-Identifier: MIT
#include "script/player.h"

namespace {

struct Line
{
    QString text;
    QString place;
};

/// The words of @p text without quotes; for each of them $1, $2 ... stand in the body of a verb.
QStringList split(const QString &text)
{
    static const QRegularExpression word(u"\"([^\"]*)\"|\\S+"_s);
    QStringList words;
    for (const auto &match : word.globalMatch(text))
        words += match.hasCaptured(1) ? match.captured(1) : match.captured();
    return words;
}

QString filledIn(QString text, const QStringList &words)
{
    for (qsizetype at = words.size(); at > 0; --at)
        text.replace(u'$' + QString::number(at), words[at - 1]);
    return text;
}

/// The lines that are not empty. One that begins with a slash continues the line before.
QList<Line> readLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qUtf8Printable(path));
    QList<Line> lines;
    int number = 0;
    for (QString &text : QString::fromUtf8(file.readAll()).split(u'\n')) {
        text.remove(QRegularExpression(u"^ +|\r$"_s));
        ++number;
        if (text.startsWith(u"/ "_s) && !lines.isEmpty())
            lines.last().text += u' ' + text;
        else if (!text.isEmpty() && !text.startsWith(u'#'))
            lines += {text, u"%1:%2"_s.arg(path).arg(number)};
    }
    return lines;
}

/// The lines of a draw file of some kinds as steps. Successive rows of one grid are one step, such
/// as: heavy "3 ตัวตรง" "232|47,177 / 222|1,000". The rows of a ticket are followed by the step "file".
QList<Line> readDraw(const QString &path, const QStringList &kinds)
{
    static const QHash<QString, int> WordsBeforeRow{
        {u"row"_s, 2}, {u"heavy"_s, 2}, {u"risk"_s, 2}, {u"win"_s, 1}};
    QStringList estimates{u"Label31"_s, u"Label1"_s,  u"Label5"_s,  u"Label4"_s,
                          u"Label8"_s,  u"Label13"_s, u"Label12"_s, u"Label9"_s};
    QList<Line> steps;
    QString before;
    for (const auto &[text, place] : readLines(path)) {
        QStringList fields = text.split(u'\t');
        if (!kinds.contains(fields[0]))
            continue;
        if (fields[0] == u"risk"_s)
            fields.last() += u'%';
        else if (fields[0] == u"board"_s)
            fields += estimates.takeFirst();
        QStringList cells = fields.mid(WordsBeforeRow.value(fields[0], int(fields.size())));
        const QString step = fields.first(fields.size() - cells.size()).join(u"\" \""_s) + u'"';
        const QString row = cells.replaceInStrings(QRegularExpression(u"^ "_s), {}).join(u'|');
        if (before.startsWith(u"row"_s) && fields[0] != u"row"_s)
            steps += {u"file"_s, place};
        if (!row.isEmpty() && step == before)
            steps.last().text.chop(1);
        else
            steps += {QString(step).remove(step.indexOf(u'"'), 1), place};
        if (!row.isEmpty())
            steps.last().text += (step == before ? u" / "_s : u" \""_s) + row + u'"';
        before = step;
    }
    return steps;
}

/// Puts the steps of "each", of "play" and of verbs made by "to" in their places.
class Expansion
{
public:
    /// The lines of a script that are left, with @p words for $1, $2 ...
    QList<Line> expand(const QList<Line> &from, const QStringList &words, const QString &caller)
    {
        QList<Line> lines;
        for (qsizetype at = 0; at < from.size(); ++at) {
            const QString text = filledIn(from[at].text, words);
            const QString place = from[at].place + caller;
            const QString verb = text.section(u' ', 0, 0);
            const QStringList rest = split(text).sliced(1);
            if (verb == u"to"_s)
                m_made[rest.value(0)] = takeBody(from, at, words);
            else if (verb == u"each"_s)
                lines += expandRows(takeBody(from, at, words), rest, caller);
            else if (verb == u"play"_s)
                lines +=
                    expand(readDraw(QFileInfo(from[at].place).path() + u'/' + rest.value(0), rest),
                           {}, u" in "_s + place);
            else if (verb == u"optional"_s)
                lines += text.contains(u'$')
                             ? QList<Line>()
                             : expand({{text.sliced(9), from[at].place}}, {}, caller);
            else if (m_made.contains(verb))
                lines += expandRows(m_made[verb], rest, u" in "_s + place);
            else
                for (const QString &each :
                     verb == u"click"_s ? text.split(u" / "_s) : QStringList(text))
                    lines += {each.startsWith(verb) ? each : verb + u' ' + each, place};
        }
        return lines;
    }

private:
    /// The lines from @p at to their "end".
    static QList<Line> takeBody(const QList<Line> &from, qsizetype &at, const QStringList &words)
    {
        QList<Line> body;
        for (int open = 1; ++at < from.size();) {
            const QString verb = from[at].text.section(u' ', 0, 0);
            open += verb == u"each"_s || verb == u"to"_s ? 1 : verb == u"end"_s ? -1 : 0;
            if (open == 0)
                break;
            body += {filledIn(from[at].text, words), from[at].place};
        }
        return body;
    }

    /// Expands @p body for each row of @p words, which are parted by slashes.
    QList<Line> expandRows(const QList<Line> &body, QStringList words, const QString &caller)
    {
        QList<Line> lines;
        for (words += u"/"_s; !words.isEmpty(); words = words.sliced(words.indexOf(u"/"_s) + 1))
            lines += expand(body, words.first(words.indexOf(u"/"_s)), caller);
        return lines;
    }

    QHash<QString, QList<Line>> m_made;
};

/// The step and one more for each key: "<F5>" is a key, and so is each character of other words.
QList<Step> stepsOf(const Step &step)
{
    static const QHash<QString, int> WordsBeforeKeys{{u"key"_s, 0}, {u"at"_s, 2}, {u"type"_s, 1}};
    static const QRegularExpression key(u"(<[^<>]+>)(?:\\*(\\d+))?|."_s);
    if (!WordsBeforeKeys.contains(step.verb))
        return {step};
    QList<Step> steps(step.verb == u"key"_s ? 0 : 1, step);
    for (const QString &word : step.words.mid(WordsBeforeKeys[step.verb]))
        for (const auto &match : key.globalMatch(word))
            steps += QList<Step>(qMax(1, match.captured(2).toInt()),
                                 {u"key"_s,
                                  match.captured(match.hasCaptured(1) ? 1 : 0),
                                  {},
                                  step.text,
                                  step.place});
    return steps;
}

} // namespace

QList<Case> readScript(const QString &path)
{
    QList<Case> cases(1); // the steps before the first case
    bool started = false;
    Expansion expansion;
    expansion.expand(readLines(QFileInfo(path).path() + u"/../script/common.verbs"_s), {}, {});
    for (const auto &[text, place] : expansion.expand(readLines(path), {}, {})) {
        const QString verb = text.section(u' ', 0, 0);
        const QString rest = text.mid(verb.size() + 1).trimmed();
        if (verb == u"case"_s) {
            cases += {rest, cases[0].steps};
            started =
                std::ranges::find(cases[0].steps, u"start"_s, &Step::verb) != cases[0].steps.end();
            continue;
        }
        if (workOf(verb) == Work::Unknown || text.contains(u'$'))
            qFatal("%s: not a step: %s", qUtf8Printable(place), qUtf8Printable(text));
        if (workOf(verb) != Work::Aside && !std::exchange(started, true))
            cases.last().steps += {u"start"_s, {}, {}, text, place};
        started = started && verb != u"ends"_s;
        cases.last().steps +=
            stepsOf({verb, rest, split(rest).replaceInStrings(u"\\n"_s, u"\n"_s), text, place});
    }
    if (cases.size() == 1)
        qFatal("%s: no case", qUtf8Printable(path));
    return cases.sliced(1);
}
