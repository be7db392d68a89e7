// SPDX-License-Identifier: MIT
#include "paper/pageview.h"
#include "script/player.h"
#include "support/otherreaders.h"
#include "widgets/spread.h"

namespace {

/// Compares rows, in any order if @p sorted. "none" is no row, "…" any more rows.
void expectRows(const QString &expected, QStringList actual, bool sorted = false)
{
    QStringList rows = expected == u"none"_s ? QStringList() : expected.split(u" / "_s);
    if (!rows.isEmpty() && rows.last() == u"…"_s)
        actual = actual.mid(0, rows.size() - 1) << u"…"_s;
    if (sorted) {
        rows.sort();
        actual.sort();
    }
    expect(rows.join(u" / "_s), actual.join(u" / "_s));
}

void compareFiles(const Step &step)
{
    const QFileInfo pattern(Stage::file(step.words[0]));
    QStringList names;
    for (const QFileInfo &file : pattern.dir().entryInfoList({pattern.fileName()}, QDir::Files))
        names += file.fileName() + (file.size() == 0 ? u"(empty)"_s : QString());
    expect(step.words.mid(2).join(u' '), names.join(u' '));
}

/// Empties a field. The keys that fill it are steps of their own.
void enterField(QWidget *control)
{
    const auto *combo = qobject_cast<QComboBox *>(control);
    auto *field = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(control);
    if (!field)
        throw NotYet{nameOf(control) + u" is no field"_s};
    control->setFocus();
    field->selectAll();
    if (!field->text().isEmpty())
        pressKey(u"<Backspace>"_s);
}

/// Chooses an entry of the list that drops down, unless it is chosen.
void chooseEntry(QComboBox *combo, const QString &entry)
{
    if (combo->currentText() == entry && !combo->isEditable())
        return;
    if (combo->findText(entry) < 0)
        throw NotYet{u"no entry "_s + entry};
    combo->setFocus();
    combo->showPopup();
    combo->view()->setCurrentIndex(
        combo->model()->index(combo->findText(entry), combo->modelColumn()));
    pressKey(u"<Enter>"_s);
    if (QApplication::activeWindow() != combo->window())
        combo->window()->activateWindow(); // the offscreen platform does not
}

/// What "focus", a control, or a part of it in brackets, shows.
QString shownBy(const QString &words)
{
    if (words == u"focus"_s)
        return nameOf(Stage::activeWindow()->focusWidget());
    const QWidget *seen = findControl(Stage::window(), words.section(u'[', 0, 0));
    return read(seen, words.section(u'[', 1).section(u']', 0, 0));
}

/// Compares the rows of a grid: the cells in the columns named in brackets, by default in those that
/// are visible, parted by "|". The column "hot" is there if a cell of the row is coloured.
void seeGrid(const Step &step)
{
    const QString name = step.words[0];
    const auto *grid =
        qobject_cast<Spread *>(findControl(Stage::window(), name.section(u'[', 0, 0)));
    QStringList columns = name.section(u'[', 1).section(u']', 0, 0).split(u',', Qt::SkipEmptyParts);
    const int count = grid ? grid->spreadModel()->columns() : 0;
    if (columns.isEmpty()) {
        for (int column = 1; column <= count; ++column)
            if (!grid->isColumnHidden(column))
                columns += QString::number(column);
        columns += u"hot"_s;
    }
    QStringList rows;
    for (int row = 1; grid && row <= grid->rows(); ++row) {
        QStringList cells;
        for (const QString &column : columns)
            cells += grid->text(row, column.toInt()).trimmed();
        if (columns.last() == u"hot"_s)
            cells.removeLast();
        for (int column = 1; column <= count && columns.last() == u"hot"_s; ++column)
            if (grid->color(row, column).isValid())
                cells += u"hot"_s;
        rows += cells.join(u'|');
    }
    expectRows(step.rest.sliced(step.rest.indexOf(u' ', step.rest.indexOf(name) + name.size()) + 1),
               rows, name.endsWith(u'*'));
}

/// Compares the box on top with words such as: warning OK [Cancel] "title" "text". Presses the button
/// behind the arrow, or a key, by default Enter.
void readBox(const Step &step)
{
    static const char *const Icons[]{"none", "information", "warning", "critical", "question"};
    const QStringList parts = step.rest.split(u" -> "_s);
    const QString answer = parts.value(1, u"<Enter>"_s);
    const QMessageBox *box = Stage::box();
    if (!box)
        throw NotYet{u"  expected  "_s + parts[0] + u"\n  actual    no box"_s};
    QString words = QLatin1String(Icons[box->icon()]);
    for (QAbstractButton *button : box->buttons())
        words += (button == box->defaultButton() ? u" [%1]"_s : u" %1"_s)
                     .arg(button->text().remove(u'&'));
    QString text = u" \"%1\" \"%2\""_s.arg(box->windowTitle(), box->text());
    text.replace(QDir::toNativeSeparators(Stage::file({})), u"FOLDER/"_s);
    expect(parts[0], words + text.replace(u'\n', u"\\n"_s));
    if (!box->isActiveWindow() || !box->isAncestorOf(QApplication::focusWidget()))
        throw NotYet{u"the box is not active"_s};
    for (QAbstractButton *button : box->buttons()) {
        if (answer == button->text().remove(u'&')) {
            button->setFocus();
            return pressKey(u"<Space>"_s);
        }
    }
    pressKey(answer);
}

/// Saves a picture of the window, or of the first page of its report, in the folder DESK_PICTURES.
/// Fails if the desktop gives a control a font of its own, which may have no Thai letters.
void takePicture(const QString &name, bool ofPage)
{
    QWidget *window = Stage::activeWindow();
    for (const QWidget *part : window->findChildren<QWidget *>())
        expect(QApplication::font().family(), part->font().family());
    const QString folder = qEnvironmentVariable("DESK_PICTURES");
    if (folder.isEmpty())
        return;
    auto *report = window->findChild<PageView *>();
    if (ofPage)
        report->setZoom(100);
    const QPixmap picture = ofPage ? report->picture(1) : window->grab();
    if (!picture.save(folder + u'/' + name + u".png"_s))
        qFatal("cannot save a picture in %s", qUtf8Printable(folder));
}

/// Compares a window, a part of it or a file with the stored text, or rewrites that.
void compareDump(const Step &step)
{
    const QString of = step.words.value(1);
    if (of.contains(u'.') && !QFile::exists(Stage::file(of)))
        throw NotYet{u"no file "_s + of};
    QWidget *window = Stage::activeWindow();
    QStringList actual = of.contains(u'.')
                             ? readByOthers(Stage::file(of))
                             : dumpWindow(of.isEmpty() ? window : findControl(window, of));
    actual = actual.filter(QRegularExpression(step.words.value(2)));
    QFile file(QFileInfo(step.place.section(u" in "_s, 0, 0)).path() + u'/' + step.words[0]
               + u".dump"_s);
    if (qEnvironmentVariableIsSet("DESK_ACCEPT") && file.open(QIODevice::WriteOnly))
        file.write((actual.join(u'\n') + u'\n').toUtf8());
    file.close();
    if (!file.open(QIODevice::ReadOnly))
        throw NotYet{u"no stored text "_s + file.fileName()};
    const QStringList stored = QString::fromUtf8(file.readAll()).chopped(1).split(u'\n');
    for (qsizetype line = 0; line < std::max(stored.size(), actual.size()); ++line)
        expect(stored.value(line), actual.value(line));
}

void doAside(const Step &step, const QStringList &words)
{
    if (step.verb == u"sql"_s) {
        const QStringList rows = Stage::run(step.rest.section(u" => "_s, 0, 0));
        if (step.rest.contains(u" => "_s))
            expectRows(step.rest.section(u" => "_s, 1), rows);
    } else if (step.verb == u"files"_s) {
        compareFiles(step);
    } else if (step.verb == u"clip"_s) {
        QApplication::clipboard()->setText(words[0]);
    } else if (step.verb == u"colors"_s) {
        QApplication::setPalette(QPalette(QColor(words[0]), QColor(words[1])));
    } else if (step.verb == u"write"_s) {
        QFile file(Stage::file(words[0]));
        if (!file.open(QIODevice::WriteOnly) || file.write(words[1].toUtf8()) < 0)
            qFatal("cannot write %s", qUtf8Printable(file.fileName()));
    }
}

void look(const Step &step, const QStringList &words)
{
    if (step.verb == u"start"_s)
        Stage::start();
    else if (step.verb == u"see"_s)
        for (qsizetype at = 0; at < words.size(); at += 2)
            expect(words[at] + u' ' + words.value(at + 1, u"nothing"_s).trimmed(),
                   words[at] + u' ' + shownBy(words[at]));
    else if (step.verb == u"grid"_s)
        seeGrid(step);
    else if (step.verb == u"box"_s)
        readBox(step);
    else if (step.verb == u"dump"_s)
        compareDump(step);
    else if (step.verb == u"look"_s)
        expect({}, faultsIn(Stage::activeWindow()).join(u"\n            "_s));
    else if (step.verb == u"picture"_s)
        takePicture(words[0], words.size() > 1);
    else if (step.verb == u"ends"_s)
        throw NotYet{u"the program still runs"_s};
}

void act(const Step &step, const QStringList &words)
{
    QWidget *window = Stage::activeWindow();
    QWidget *focus = QApplication::focusWidget();
    if (step.verb == u"close"_s) {
        window->close();
    } else if (step.verb == u"key"_s || step.verb == u"compose"_s) {
        QInputMethodEvent composed;
        composed.setCommitString(step.rest);
        if (!focus)
            throw NotYet{u"no control has the focus"_s};
        if (step.verb == u"key"_s)
            pressKey(step.rest);
        else
            QApplication::sendEvent(focus, &composed);
    } else if (QWidget *control = findControl(window, words[0]); step.verb == u"click"_s) {
        click(control, words.value(1), words.last());
    } else if (step.verb == u"at"_s) {
        control->setFocus();
        QMetaObject::invokeMethod(control, "setActiveRow", Q_ARG(int, words[1].toInt()));
    } else if (step.verb == u"type"_s) {
        enterField(control);
    } else if (step.verb == u"choose"_s) {
        chooseEntry(qobject_cast<QComboBox *>(control), words[1]);
    } else if (step.verb == u"set"_s) {
        control->setProperty(qPrintable(words[1]),
                             QString(words[2]).replace(u"FOLDER/"_s, Stage::file({})));
    } else if (step.verb == u"wheel"_s) {
        const QPoint middle = control->rect().center();
        QWheelEvent wheel(middle, control->mapToGlobal(middle), {}, {0, -120}, {},
                          words.size() > 1 ? Qt::ControlModifier : Qt::NoModifier, {}, false);
        QApplication::sendEvent(control, &wheel);
    }
}

} // namespace

Work workOf(const QString &verb)
{
    static const QStringList Aside = u"sql files clip colors write"_s.split(u' ');
    static const QStringList Looks = u"start see grid box dump look picture ends"_s.split(u' ');
    static const QStringList Acts =
        u"close key compose click at type choose set wheel"_s.split(u' ');
    return Aside.contains(verb)   ? Work::Aside
           : Looks.contains(verb) ? Work::Looks
           : Acts.contains(verb)  ? Work::Acts
                                  : Work::Unknown;
}

void run(const Step &step)
{
    const Work work = workOf(step.verb);
    (work == Work::Aside ? doAside : work == Work::Looks ? look : act)(step, step.words);
}
