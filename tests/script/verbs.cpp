// SPDX-License-Identifier: MIT
#include "script/verbs.h"

#include "desktop/clock.h"
#include "desktop/region.h"
#include "entry/vocabulary.h"
#include "script/controls.h"
#include "script/dump.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

QString differs(const QString &expected, const QString &actual)
{
    return expected == actual ? QString()
                              : u"  expected  "_s + expected + u"\n  actual    "_s + actual;
}

/// Compares rows; "…" as the last expected one stands for any others, "none" for no row.
QString rowsDiffer(const QString &expected, QStringList actual)
{
    QStringList rows = expected == u"none"_s ? QStringList() : rowsOf(expected);
    for (QString &row : rows)
        row = row.trimmed();
    if (!rows.isEmpty() && rows.last() == u"…"_s && actual.size() >= rows.size() - 1)
        actual = actual.mid(0, rows.size() - 1) << u"…"_s;
    return differs(rows.isEmpty() ? u"none"_s : rows.join(u" / "_s),
                   actual.isEmpty() ? u"none"_s : actual.join(u" / "_s));
}

/// What is only in one of two texts, line by line.
QString linesDiffer(const QStringList &expected, const QStringList &actual)
{
    QStringList lines;
    for (const QString &line : expected)
        lines += actual.contains(line) ? QString() : u"  expected  "_s + line;
    for (const QString &line : actual)
        lines += expected.contains(line) ? QString() : u"  actual    "_s + line;
    lines.removeAll(QString());
    if (lines.isEmpty() && expected != actual)
        lines += u"  the lines stand in another order"_s;
    return lines.join(u'\n');
}

/// Finds the control for @p work, or gives what is wrong with it.
QString withControl(const Stage &stage, const QString &name,
                    const std::function<QString(QWidget *)> &work)
{
    QWidget *window = stage.window();
    QWidget *control = window ? findControl(window, name) : nullptr;
    if (!control)
        return u"no control %1 in %2"_s.arg(name, window ? window->objectName() : u"no window"_s);
    return work(control);
}

/// The same for a control that is about to be worked.
QString withReady(const Stage &stage, const QString &name,
                  const std::function<QString(QWidget *)> &work)
{
    const QString wrong = notReady(stage.window());
    return wrong.isEmpty() ? withControl(stage, name, work) : wrong;
}

// What lies in the Ledger, in the folder and on the clock.

QString addMembers(Stage &stage, const Step &step)
{
    for (const QString &row : rowsOf(step.rest)) {
        const QStringList words = wordsOf(row);
        stage.run(u"INSERT INTO tblMember (MPK, Mname, Mpercen) VALUES (?, ?, ?)"_s,
                  {words.value(0), words.value(1), words.value(2)});
    }
    return {};
}

QString addHotNumbers(Stage &stage, const Step &step)
{
    for (const QString &number : wordsOf(step.rest))
        stage.run(u"INSERT INTO tblNumberFix (Fnumber) VALUES (?)"_s, {number});
    return {};
}

/// A row without a class has that of the row before.
QString addLines(Stage &stage, const Step &step)
{
    const BetClass *betClass = nullptr;
    for (const QString &row : rowsOf(step.rest)) {
        QStringList words = wordsOf(row);
        if (words.size() == 4)
            betClass = std::find_if(BetClasses.begin(), BetClasses.end(),
                                    [caption = words.takeAt(1)](const BetClass &each) {
                                        return caption == each.caption;
                                    });
        if (words.size() != 3 || !betClass || betClass == BetClasses.end())
            qFatal("%d: not a line: %s", step.line, qUtf8Printable(row));
        stage.run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy, nuser)"
                  " VALUES (?, ?, ?, ?, ?, ?, 'sv')"_s,
                  {words[0], betClass->num23, betClass->updown ? -1 : 0, betClass->numType,
                   words[1], words[2]});
    }
    return {};
}

QString runSql(Stage &stage, const Step &step)
{
    const QStringList parts = step.rest.split(u" => "_s);
    const QStringList rows = stage.run(parts[0]);
    return parts.size() == 1 ? QString() : rowsDiffer(parts[1], rows);
}

QString setClockTo(Stage &, const Step &step)
{
    constexpr int BuddhistYears = 543;
    const QDateTime time = QDateTime::fromString(step.rest, u"yyyy-MM-dd HH:mm"_s);
    if (!time.isValid())
        qFatal("%d: not a time: %s", step.line, qUtf8Printable(step.rest));
    setClock([time] { return time.addYears(-BuddhistYears); });
    return {};
}

QString setRegion(Stage &, const Step &step)
{
    setMachineRegion(QLocale(step.rest));
    return {};
}

QString writeFile(Stage &stage, const Step &step)
{
    const QString name = step.rest.section(u' ', 0, 0);
    QFile file(stage.file(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(step.rest.mid(name.size() + 1).toUtf8()) < 0)
        qFatal("%d: cannot write %s", step.line, qUtf8Printable(name));
    return {};
}

QString compareFiles(Stage &stage, const Step &step)
{
    const QStringList parts = step.rest.split(u" => "_s);
    const QFileInfo pattern(stage.file(parts[0]));
    QStringList names;
    for (const QFileInfo &file :
         pattern.dir().entryInfoList({pattern.fileName()}, QDir::Files | QDir::Hidden))
        names += file.fileName() + (file.size() == 0 ? u"(empty)"_s : QString());
    return differs(parts.value(1), names.isEmpty() ? u"none"_s : names.join(u' '));
}

// What a person does.

QString start(Stage &stage, const Step &)
{
    stage.start();
    return {};
}

QString openPage(Stage &stage, const Step &step)
{
    return withReady(stage, u"navigation."_s + step.rest,
                     [](QWidget *button) { return click(button, {}, {}); });
}

QString chooseWindow(Stage &stage, const Step &step)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == step.rest && window->isVisible()) {
            stage.chosen = window;
            return notReady(stage.window());
        }
    }
    return u"no window "_s + step.rest;
}

QString clickControl(Stage &stage, const Step &step)
{
    QStringList words = wordsOf(step.rest);
    const QString name = words.takeFirst();
    const QString how =
        words.contains(u"double"_s) || words.contains(u"right"_s) ? words.takeLast() : QString();
    return withReady(stage, name,
                     [&](QWidget *control) { return click(control, words.value(0), how); });
}

QString moveTo(Stage &stage, const Step &step)
{
    const QStringList words = wordsOf(step.rest);
    return withReady(stage, words.value(0), [&](QWidget *grid) {
        grid->setFocus();
        QMetaObject::invokeMethod(grid, "setActiveRow", Q_ARG(int, words.value(1).toInt()));
        return QString();
    });
}

QString pressKeyInFocus(Stage &stage, const Step &step)
{
    if (const QString wrong = notReady(stage.window()); !wrong.isEmpty())
        return wrong;
    if (!QApplication::focusWidget())
        return u"no control has the focus"_s;
    pressKey(step.rest);
    return {};
}

/// Selects what stands in a field; the keys that replace it are steps of their own.
QString enterField(Stage &stage, const Step &step)
{
    return withReady(stage, wordsOf(step.rest).value(0), [](QWidget *control) {
        auto *field = qobject_cast<QLineEdit *>(control);
        if (auto *combo = qobject_cast<QComboBox *>(control))
            field = combo->lineEdit();
        if (!field)
            return nameOf(control) + u" is no field"_s;
        control->setFocus();
        field->selectAll();
        return QString();
    });
}

QString chooseEntry(Stage &stage, const Step &step)
{
    const QStringList words = wordsOf(step.rest);
    return withReady(stage, words.value(0), [&](QWidget *control) {
        auto *combo = qobject_cast<QComboBox *>(control);
        const int entry = combo ? combo->findText(words.value(1)) : -1;
        if (entry < 0)
            return u"no entry "_s + words.value(1);
        combo->setFocus();
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(entry, combo->modelColumn()));
        pressKey(u"<Enter>"_s);
        return QString();
    });
}

QString closeWindow(Stage &stage, const Step &)
{
    const QString wrong = notReady(stage.window());
    if (wrong.isEmpty())
        stage.window()->close();
    return wrong;
}

// What a person sees.

/// What is wrong with a control that has to say @p expected or be in that state; "" if nothing is.
QString seeOne(const Stage &stage, const QString &name, const QString &expected)
{
    static const QRegularExpression parts(uR"(^(.*?)(?:\[(.*)\])?$)"_s);
    const auto match = parts.match(name);
    QString path = match.captured(1);
    QString part = match.captured(2);
    QWidget *window = stage.window();
    if (part.isEmpty() && window && !findControl(window, path) && path.contains(u'.')) {
        part = path.section(u'.', -1);
        path = path.section(u'.', 0, -2);
    }
    return withControl(stage, path, [&](QWidget *control) {
        const auto *button = qobject_cast<QAbstractButton *>(control);
        QString actual = read(control, part);
        if (!part.isEmpty())
            return differs(expected, actual);
        if (expected == u"shown"_s || expected == u"hidden"_s)
            actual = control->isVisible() ? u"shown"_s : u"hidden"_s;
        else if (expected == u"enabled"_s || expected == u"disabled"_s)
            actual = control->isEnabled() ? u"enabled"_s : u"disabled"_s;
        else if (expected == u"checked"_s || expected == u"unchecked"_s)
            actual = button && button->isChecked() ? u"checked"_s : u"unchecked"_s;
        return differs(expected.trimmed(), actual);
    });
}

QString see(Stage &stage, const Step &step)
{
    const QStringList words = wordsOf(step.rest);
    for (qsizetype at = 0; at < words.size(); at += 2) {
        const QString wrong = seeOne(stage, words[at], words.value(at + 1));
        if (!wrong.isEmpty())
            return words[at] + u":\n"_s + wrong;
    }
    return {};
}

QString seeGrid(Stage &stage, const Step &step)
{
    const QString name = step.rest.section(u' ', 0, 0);
    const QString columns = name.section(u'[', 1).chopped(name.contains(u'[') ? 1 : 0);
    return withControl(stage, name.section(u'[', 0, 0), [&](QWidget *grid) {
        return rowsDiffer(step.rest.mid(name.size() + 1),
                          gridRows(grid, columns.split(u',', Qt::SkipEmptyParts)));
    });
}

QString seeFocus(Stage &stage, const Step &step)
{
    const QString wrong = notReady(stage.window());
    return wrong.isEmpty() ? differs(step.rest, nameOf(QApplication::focusWidget())) : wrong;
}

/// A box in the words of a script: warning OK [Cancel] "title" "text".
QString describe(const QMessageBox &box)
{
    constexpr std::array Icons{u"none", u"information", u"warning", u"critical", u"question"};
    QStringList words{QString::fromUtf16(Icons.at(size_t(box.icon())))};
    for (QAbstractButton *button : box.buttons()) {
        const QString caption = button->text().remove(u'&');
        words += button == box.defaultButton() ? u'[' + caption + u']' : caption;
    }
    for (QString text : {box.windowTitle(), box.text()})
        words += u'"' + text.replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s) + u'"';
    return words.join(u' ');
}

/// Presses the button @p answer of a box with keys, or a key such as "<Esc>", or Enter.
void answerBox(const QMessageBox &box, const QString &answer)
{
    if (answer.isEmpty() || answer.startsWith(u'<')) {
        pressKey(answer.isEmpty() ? u"<Enter>"_s : answer);
        return;
    }
    const auto focused = [] {
        const auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
        return button ? button->text().remove(u'&') : QString();
    };
    for (qsizetype tabs = box.buttons().size(); focused() != answer; --tabs) {
        if (tabs == 0)
            qFatal("the box has no button %s", qUtf8Printable(answer));
        pressKey(u"<Tab>"_s);
    }
    pressKey(u"<Space>"_s);
}

QString answer(const QString &expected, const QString &button)
{
    const QMessageBox *box = Stage::box();
    if (!box)
        return differs(expected, u"no box"_s);
    const QString wrong = differs(expected, describe(*box));
    if (!wrong.isEmpty())
        return wrong;
    if (!box->isActiveWindow() || !box->isAncestorOf(QApplication::focusWidget()))
        return u"the box is not active"_s;
    answerBox(*box, button);
    return {};
}

QString readBox(Stage &, const Step &step)
{
    const qsizetype arrow = step.rest.lastIndexOf(u" -> "_s);
    return arrow < 0 ? answer(step.rest, {})
                     : answer(step.rest.first(arrow), step.rest.sliced(arrow + 4));
}

QString readRefusal(Stage &, const Step &step)
{
    return answer(u"warning [OK] \"รายงานสถานะ\" "_s + step.rest, {});
}

QString readStatus(Stage &, const Step &step)
{
    return answer(u"information [OK] \"รายงานสถานะ\" "_s + step.rest, {});
}

/// Whoever started this process sees its end.
QString awaitEnd(Stage &, const Step &)
{
    return u"the program still runs"_s;
}

/// Compares with the stored text, or rewrites that.
QString compareDump(Stage &stage, const Step &step)
{
    const QStringList words = wordsOf(step.rest);
    QStringList lines;
    QString wrong;
    if (words.value(1).endsWith(u".xls"_s))
        lines = dumpSheet(stage.file(words[1]));
    else if (wrong = notReady(stage.window()); wrong.isEmpty())
        wrong =
            withControl(stage, words.value(1, stage.window()->objectName()), [&](QWidget *part) {
                lines = dumpWindow(part);
                return QString();
            });
    if (!wrong.isEmpty())
        return wrong;
    QFile stored(stage.stored + words.value(0) + u".txt"_s);
    if (qEnvironmentVariableIsSet("DESK_ACCEPT")) {
        if (!stored.open(QIODevice::WriteOnly)
            || stored.write((lines.join(u'\n') + u'\n').toUtf8()) < 0)
            qFatal("cannot write %s", qUtf8Printable(stored.fileName()));
        return {};
    }
    if (!stored.open(QIODevice::ReadOnly))
        return u"no stored text "_s + stored.fileName();
    const QStringList expected = QString::fromUtf8(stored.readAll()).trimmed().split(u'\n');
    return linesDiffer(expected, lines);
}

constexpr std::array Verbs{
    Verb{u"member", 0, addMembers},
    Verb{u"hot", 0, addHotNumbers},
    Verb{u"line", 0, addLines},
    Verb{u"sql", Checks, runSql},
    Verb{u"clock", 0, setClockTo},
    Verb{u"region", 0, setRegion},
    Verb{u"write", 0, writeFile},
    Verb{u"files", Checks, compareFiles},
    Verb{u"start", 0, start},
    Verb{u"page", NeedsProgram | Acts, openPage},
    Verb{u"in", NeedsProgram | Acts, chooseWindow},
    Verb{u"click", NeedsProgram | Acts, clickControl},
    Verb{u"at", NeedsProgram | Acts, moveTo},
    Verb{u"key", NeedsProgram | Acts, pressKeyInFocus},
    Verb{u"type", NeedsProgram | Acts, enterField},
    Verb{u"choose", NeedsProgram | Acts, chooseEntry},
    Verb{u"close", NeedsProgram | Acts, closeWindow},
    Verb{u"see", NeedsProgram | Checks, see},
    Verb{u"grid", NeedsProgram | Checks, seeGrid},
    Verb{u"focus", NeedsProgram | Checks, seeFocus},
    Verb{u"box", NeedsProgram | Checks, readBox},
    Verb{u"refused", NeedsProgram | Checks, readRefusal},
    Verb{u"informed", NeedsProgram | Checks, readStatus},
    Verb{u"dump", NeedsProgram | Checks, compareDump},
    Verb{u"ends", NeedsProgram | Checks, awaitEnd},
};

} // namespace

const Verb *findVerb(const QString &name)
{
    const auto *verb = std::find_if(Verbs.begin(), Verbs.end(),
                                    [&](const Verb &each) { return each.name == name; });
    return verb == Verbs.end() ? nullptr : verb;
}
