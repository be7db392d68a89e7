// SPDX-License-Identifier: MIT
#include "script/verbs.h"

#include "access/look.h"
#include "desktop/clock.h"
#include "desktop/region.h"
#include "entry/vocabulary.h"
#include "paper/pageview.h"
#include "script/controls.h"
#include "script/dump.h"
#include "support/otherreaders.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QHash>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QWheelEvent>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

void expectRows(const QString &expected, QStringList actual, bool inAnyOrder = false)
{
    const QStringList words = wordsOf(expected);
    QStringList rows = rowsOf(words.size() == 1 ? words[0] : expected);
    if (!rows.isEmpty() && rows.last() == u"…"_s && actual.size() >= rows.size() - 1)
        actual = actual.mid(0, rows.size() - 1) << u"…"_s;
    if (inAnyOrder) {
        rows.sort();
        actual.sort();
    }
    expect(rows.isEmpty() ? u"none"_s : rows.join(u" / "_s),
           actual.isEmpty() ? u"none"_s : actual.join(u" / "_s));
}

// What lies in the Ledger, in the folder and on the clock.

void addMembers(Stage &stage, const Step &step)
{
    for (const QString &row : rowsOf(step.rest)) {
        const QStringList words = wordsOf(row);
        stage.run(u"INSERT INTO tblMember (MPK, Mname, Mpercen) VALUES (?, ?, ?)"_s,
                  {words.value(0), words.value(1), words.value(2)});
    }
}

void addHotNumbers(Stage &stage, const Step &step)
{
    for (const QString &number : step.words)
        stage.run(u"INSERT INTO tblNumberFix (Fnumber) VALUES (?)"_s, {number});
}

/// A row without a class has that of the row before.
void addLines(Stage &stage, const Step &step)
{
    const BetClass *betClass = BetClasses.end();
    for (const QString &row : rowsOf(step.rest)) {
        QStringList words = wordsOf(row);
        if (words.size() == 4) {
            const QString caption = words.takeAt(1);
            betClass = std::find_if(BetClasses.begin(), BetClasses.end(),
                                    [&](const auto &each) { return caption == each.caption; });
        }
        if (words.size() != 3 || betClass == BetClasses.end())
            qFatal("%d: not a line: %s", step.line, qUtf8Printable(row));
        stage.run(u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy, nuser)"
                  " VALUES (?, ?, ?, ?, ?, ?, 'sv')"_s,
                  {words[0], betClass->num23, -int(betClass->updown), betClass->numType, words[1],
                   words[2]});
    }
}

void runSql(Stage &stage, const Step &step)
{
    const QStringList parts = step.rest.split(u" => "_s);
    const QStringList rows = stage.run(parts[0]);
    if (parts.size() > 1)
        expectRows(parts[1], rows);
}

void setClockTo(Stage &, const Step &step)
{
    constexpr int BuddhistYears = 543;
    const QDateTime time = QDateTime::fromString(step.rest, u"yyyy-MM-dd HH:mm"_s);
    if (!time.isValid())
        qFatal("%d: not a time: %s", step.line, qUtf8Printable(step.rest));
    setClock([time] { return time.addYears(-BuddhistYears); });
}

void setRegion(Stage &, const Step &step)
{
    setMachineRegion(QLocale(step.rest));
}

void copyText(Stage &, const Step &step)
{
    QApplication::clipboard()->setText(step.words.value(0));
}

void writeFile(Stage &stage, const Step &step)
{
    QFile file(stage.file(step.words.value(0)));
    if (!file.open(QIODevice::WriteOnly) || file.write(step.words.value(1).toUtf8()) < 0)
        qFatal("%d: cannot write %s", step.line, qUtf8Printable(file.fileName()));
}

void compareFiles(Stage &stage, const Step &step)
{
    const QStringList parts = step.rest.split(u" => "_s);
    const QFileInfo pattern(stage.file(parts[0]));
    QStringList names;
    for (const QFileInfo &file :
         pattern.dir().entryInfoList({pattern.fileName()}, QDir::Files | QDir::Hidden))
        names += file.fileName() + (file.size() == 0 ? u"(empty)"_s : QString());
    expect(parts.value(1), names.isEmpty() ? u"none"_s : names.join(u' '));
}

// What a person does.

void start(Stage &stage, const Step &)
{
    stage.start();
}

void openPage(Stage &stage, const Step &step)
{
    click(findControl(stage.activeWindow(), u"navigation."_s + step.rest));
}

void chooseWindow(Stage &stage, const Step &step)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == step.rest && window->isVisible())
            stage.chosen = window;
    }
    expect(step.rest, stage.activeWindow()->objectName());
}

void clickControl(Stage &stage, const Step &step)
{
    const QString last = step.words.last();
    const bool how = last == u"double"_s || last == u"right"_s;
    click(findControl(stage.activeWindow(), step.words[0]),
          step.words.size() > (how ? 2 : 1) ? step.words[1] : QString(), how ? last : QString());
}

void moveTo(Stage &stage, const Step &step)
{
    QWidget *grid = findControl(stage.activeWindow(), step.words[0]);
    grid->setFocus();
    QMetaObject::invokeMethod(grid, "setActiveRow", Q_ARG(int, step.words.value(1).toInt()));
}

void pressKeyInFocus(Stage &stage, const Step &step)
{
    if (stage.activeWindow() && !QApplication::focusWidget())
        throw NotYet{u"no control has the focus"_s};
    pressKey(step.rest);
}

void turnWheel(Stage &stage, const Step &step)
{
    QWidget *control = findControl(stage.activeWindow(), step.words[0]);
    const QPoint middle = control->rect().center();
    const bool ctrl = step.words.value(1) == u"ctrl"_s;
    QWheelEvent wheel(middle, control->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                      ctrl ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &wheel);
}

/// What an input method gives, such as one for another script.
void composeText(Stage &stage, const Step &step)
{
    stage.activeWindow();
    QInputMethodEvent composed;
    composed.setCommitString(step.words[0]);
    QApplication::sendEvent(QApplication::focusWidget(), &composed);
}

/// Selects what stands in a field; the keys that replace it are steps of their own.
void enterField(Stage &stage, const Step &step)
{
    QWidget *control = findControl(stage.activeWindow(), step.words[0]);
    auto *combo = qobject_cast<QComboBox *>(control);
    auto *field = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(control);
    if (!field)
        throw NotYet{step.words[0] + u" is no field"_s};
    control->setFocus();
    field->selectAll();
}

void chooseEntry(Stage &stage, const Step &step)
{
    auto *combo = qobject_cast<QComboBox *>(findControl(stage.activeWindow(), step.words[0]));
    const int entry = combo ? combo->findText(step.words.value(1)) : -1;
    if (entry < 0)
        throw NotYet{u"no entry "_s + step.words.value(1)};
    combo->setFocus();
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(entry, combo->modelColumn()));
    pressKey(u"<Enter>"_s);
    stage.window()->activateWindow(); // the offscreen platform does not
}

/// In a dialog that asks for a file, also that of a printer: saves in the program's folder.
void saveAs(Stage &stage, const Step &step)
{
    auto *field = stage.activeWindow()->findChild<QWidget *>(u"filename"_s);
    if (!field)
        field = findControl(stage.activeWindow(), u"fileNameEdit"_s);
    field->setProperty("text", stage.file(step.rest));
    field->setFocus();
    pressKey(u"<Enter>"_s);
}

void resizeWindow(Stage &stage, const Step &step)
{
    stage.activeWindow()->resize(step.words.value(0).toInt(), step.words.value(1).toInt());
}

void closeWindow(Stage &stage, const Step &)
{
    stage.activeWindow()->close();
}

// What a person sees.

/// A control has to say a text, or to be in a state.
void see(Stage &stage, const Step &step)
{
    static const QRegularExpression parts(uR"(^(.*?)(?:\[(.*)\]|\.(active|rows|list|base))?$)"_s);
    static const QHash<QString, std::pair<const char *, bool>> States{
        {u"shown"_s, {"visible", true}},   {u"hidden"_s, {"visible", false}},
        {u"enabled"_s, {"enabled", true}}, {u"disabled"_s, {"enabled", false}},
        {u"checked"_s, {"checked", true}}, {u"unchecked"_s, {"checked", false}}};
    for (qsizetype at = 0; at < step.words.size(); at += 2) {
        const auto match = parts.match(step.words[at]);
        const QString part = match.captured(2) + match.captured(3);
        const QWidget *control = findControl(stage.window(), match.captured(1));
        const QString text = step.words.value(at + 1, u"nothing"_s).trimmed();
        const auto state = States.find(text);
        if (part.isEmpty() && state != States.end())
            expect(step.words[at] + u' ' + text,
                   control->property(state->first).toBool() == state->second
                       ? step.words[at] + u' ' + text
                       : u"not "_s + text);
        else
            expect(step.words[at] + u' ' + text, step.words[at] + u' ' + read(control, part));
    }
}

void seeGrid(Stage &stage, const Step &step)
{
    const QString name = step.words[0].section(u'[', 0, 0);
    const QString columns = step.words[0].section(u'[', 1, 1).section(u']', 0, 0);
    expectRows(step.rest.mid(step.words[0].size() + 1),
               gridRows(findControl(stage.window(), name), columns.split(u',', Qt::SkipEmptyParts)),
               step.words[0].endsWith(u'*'));
}

void seeFocus(Stage &stage, const Step &step)
{
    stage.activeWindow();
    expect(step.rest, nameOf(QApplication::focusWidget()));
}

/// A box in the words of a script: warning OK [Cancel] "title" "text". The program's folder is FOLDER.
QString describe(const Stage &stage, const QMessageBox &box)
{
    const QString folder = QDir::toNativeSeparators(stage.file({}));
    constexpr std::array Icons{u"none", u"information", u"warning", u"critical", u"question"};
    QStringList words{QString::fromUtf16(Icons.at(size_t(box.icon())))};
    for (QAbstractButton *button : box.buttons()) {
        const QString caption = button->text().remove(u'&');
        const bool preselected = button == static_cast<QAbstractButton *>(box.defaultButton());
        words += preselected ? u'[' + caption + u']' : caption;
    }
    for (QString text : {box.windowTitle(), box.text()})
        words +=
            u'"'
            + text.replace(folder, u"FOLDER/"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s)
            + u'"';
    return words.join(u' ');
}

/// Compares the box on top and presses its button @p answer with keys, or a key such as "<Esc>".
void answerBox(const Stage &stage, const QString &expected, const QString &answer)
{
    const QMessageBox *box = Stage::box();
    expect(expected, box ? describe(stage, *box) : u"no box"_s);
    if (!box->isActiveWindow() || !box->isAncestorOf(QApplication::focusWidget()))
        throw NotYet{u"the box is not active"_s};
    if (answer.startsWith(u'<'))
        return pressKey(answer);
    for (qsizetype tabs = box->buttons().size();; --tabs) {
        const auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
        if (button && button->text().remove(u'&') == answer)
            return pressKey(u"<Space>"_s);
        if (tabs == 0)
            qFatal("the box has no button %s", qUtf8Printable(answer));
        pressKey(u"<Tab>"_s);
    }
}

void readBox(Stage &stage, const Step &step)
{
    const qsizetype arrow = step.rest.lastIndexOf(u" -> "_s);
    answerBox(stage, arrow < 0 ? step.rest : step.rest.first(arrow),
              arrow < 0 ? u"<Enter>"_s : step.rest.sliced(arrow + 4));
}

void readRefusal(Stage &stage, const Step &step)
{
    answerBox(stage, u"warning [OK] \"รายงานสถานะ\" "_s + step.rest, u"<Enter>"_s);
}

void readStatus(Stage &stage, const Step &step)
{
    answerBox(stage, u"information [OK] \"รายงานสถานะ\" "_s + step.rest, u"<Enter>"_s);
}

void lookForFaults(Stage &stage, const Step &)
{
    expect({}, faultsIn(stage.activeWindow()).join(u"\n            "_s));
}

/// Those of the desktop, for a program that starts after it: "dark" or "bright".
void setColors(Stage &, const Step &step)
{
    if (step.rest == u"dark"_s)
        QApplication::setPalette(QPalette(QColor(0x3A, 0x3A, 0x3A), QColor(0x2D, 0x2D, 0x2D)));
}

/// Whoever started this process sees its end.
void awaitEnd(Stage &, const Step &)
{
    throw NotYet{u"the program still runs"_s};
}

/// Saves a picture of the window, or of the first page of its report, in the folder DESK_PICTURES. Fails where a desktop gives a control
/// a font of its own, which may have no Thai letters.
void takePicture(Stage &stage, const Step &step)
{
    QWidget *window = stage.activeWindow();
    for (const QWidget *part : window->findChildren<QWidget *>())
        expect(QApplication::font().family(), part->font().family());
    const QString folder = qEnvironmentVariable("DESK_PICTURES");
    if (folder.isEmpty())
        return;
    auto *report = step.words.size() > 1 ? window->findChild<PageView *>() : nullptr;
    if (report)
        report->setZoom(100);
    const QPixmap picture = report ? report->picture(1) : window->grab();
    if (!picture.save(folder + u'/' + step.words[0] + u".png"_s))
        qFatal("cannot save a picture in %s", qUtf8Printable(folder));
}

/// Compares with the stored text, or rewrites that.
void compareDump(Stage &stage, const Step &step)
{
    const QString of = step.words.value(1);
    const bool isFile = of.endsWith(u".xls"_s) || of.endsWith(u".pdf"_s);
    if (isFile && !QFile::exists(stage.file(of)))
        throw NotYet{u"no file "_s + of};
    QStringList lines = isFile         ? readByOthers(stage.file(of))
                        : of.isEmpty() ? dumpWindow(stage.activeWindow())
                                       : dumpWindow(findControl(stage.activeWindow(), of));
    lines = lines.filter(QRegularExpression(step.words.value(2)));
    QFile stored(stage.stored + step.words[0] + u".txt"_s);
    const bool accept = qEnvironmentVariableIsSet("DESK_ACCEPT");
    if (!stored.open(accept ? QIODevice::WriteOnly : QIODevice::ReadOnly))
        throw NotYet{u"no stored text "_s + stored.fileName()};
    if (accept) {
        stored.write((lines.join(u'\n') + u'\n').toUtf8());
        return;
    }
    QStringList expected = QString::fromUtf8(stored.readAll()).split(u'\n', Qt::SkipEmptyParts);
    QStringList actual = lines;
    expected.removeIf([&](const QString &line) { return actual.removeOne(line); });
    if (!expected.isEmpty() || !actual.isEmpty())
        expect(expected.join(u"\n            "_s), actual.join(u"\n            "_s));
}

constexpr std::array Verbs{
    Verb{u"member", 0, addMembers},
    Verb{u"hot", 0, addHotNumbers},
    Verb{u"line", 0, addLines},
    Verb{u"sql", Checks, runSql},
    Verb{u"clock", 0, setClockTo},
    Verb{u"region", 0, setRegion},
    Verb{u"clip", 0, copyText},
    Verb{u"write", 0, writeFile},
    Verb{u"files", Checks, compareFiles},
    Verb{u"start", 0, start},
    Verb{u"page", InProgram | Acts, openPage},
    Verb{u"in", InProgram | Acts, chooseWindow},
    Verb{u"click", InProgram | Acts, clickControl},
    Verb{u"at", InProgram | Acts, moveTo},
    Verb{u"key", InProgram | Acts, pressKeyInFocus},
    Verb{u"type", InProgram | Acts, enterField},
    Verb{u"wheel", InProgram | Acts, turnWheel},
    Verb{u"compose", InProgram | Acts, composeText},
    Verb{u"choose", InProgram | Acts, chooseEntry},
    Verb{u"save", InProgram | Acts, saveAs},
    Verb{u"size", InProgram | Acts, resizeWindow},
    Verb{u"close", InProgram | Acts, closeWindow},
    Verb{u"see", InProgram | Checks, see},
    Verb{u"grid", InProgram | Checks, seeGrid},
    Verb{u"focus", InProgram | Checks, seeFocus},
    Verb{u"box", InProgram | Checks, readBox},
    Verb{u"refused", InProgram | Checks, readRefusal},
    Verb{u"informed", InProgram | Checks, readStatus},
    Verb{u"dump", InProgram | Checks, compareDump},
    Verb{u"colors", 0, setColors},
    Verb{u"look", InProgram | Acts | Checks, lookForFaults},
    Verb{u"picture", InProgram, takePicture},
    Verb{u"ends", InProgram | Checks, awaitEnd},
};

} // namespace

const Verb *findVerb(const QString &name)
{
    const auto *verb = std::find_if(Verbs.begin(), Verbs.end(),
                                    [&](const Verb &each) { return each.name == name; });
    return verb == Verbs.end() ? nullptr : verb;
}
