// SPDX-License-Identifier: MIT
// The parts of the script player. CONTRIBUTING.md says how to write a script.
#pragma once

#include <QtWidgets>

using namespace Qt::StringLiterals;

/// One step. Each key is a step of its own, so that what a key opens is there before the next one.
struct Step
{
    QString verb;
    QString rest;      ///< what follows the verb
    QStringList words; ///< the words of that; \n in a word is a line feed
    QString text;      ///< the whole line, for messages
    QString place;     ///< script and line, and the lines that have called it
};

struct Case
{
    QString title;
    QList<Step> steps; ///< the steps before the first case begin each case
};

/// Reads a script. Ends the process with the place of the mistake if it is wrong.
QList<Case> readScript(const QString &path);

/// Thrown by a step that cannot be done yet. The player tries again for some seconds.
struct NotYet
{
    QString reason;
};

enum class Work {
    Unknown,
    Aside, ///< on the Ledger, files or machine, without the program
    Looks, ///< at windows of the program
    Acts,  ///< as a person does, who has read every box by then
};

Work workOf(const QString &verb);

/// Does a step, or throws NotYet before it has done anything.
void run(const Step &step);

/// Number of calls of expect().
inline int comparisons = 0;

/// Throws NotYet if the two differ.
void expect(const QString &expected, const QString &actual);

/// A program folder with an encrypted Ledger, and the program in it.
namespace Stage {

/// Uses a program folder below @p place, with the clock at a fixed time and the region of Thailand.
void open(const QString &place);

/// Ends the program and makes its folder as after the first installation.
void reset();

/// Path of a file in the program's folder.
QString file(const QString &name);

/// Runs a statement, in the program's own connection while it runs. Returns the rows, their fields
/// joined by "|".
QStringList run(const QString &sql, const QVariantList &values = {});

/// Starts the program. Ends the process as main() does if it does not want to run.
void start();

/// Destroys the windows, as main() does at its end.
void end();

/// The box on top, or nullptr.
QMessageBox *box();

/// The dialog on top that is no box, or the window that is active, or the main window.
QWidget *window();

/// The same if it is active. Throws NotYet if not.
QWidget *activeWindow();

} // namespace Stage

/// The control of that name in @p window, or the visible button or grid with that caption. "A.B" is
/// the control B in A. In the main window the page comes first.
QWidget *findControl(QWidget *window, const QString &name);

/// Name of a control, or of the one that it is a part of.
QString nameOf(const QWidget *control);

/// What @p control shows, without blanks at the ends, the captions of tabs as "a|[b]". @p part is ""
/// or "2,1" for a cell, "active" or "rows" of a grid, "list" of a combo, "base" for the colour of a
/// field, else a property.
QString read(const QWidget *control, const QString &part = {});

/// Scrolls the page so that @p control can be seen.
void scrollTo(QWidget *control);

/// Presses and releases a key, such as "<Shift+Tab>" or "a", in the window that has the focus.
void pressKey(const QString &key);

/// Clicks @p place of @p control: "" its middle, "2,1" a cell, "below" under the rows of a grid, a
/// number a tab, and "2,1>3,1" a slip of the mouse. @p how is "double", "right" or "".
void click(QWidget *control, const QString &place, const QString &how);

/// The visible controls in @p window, in the order of Tab, with the cells of grids and the items of
/// report pages, without defaults and pixels, so that the text is the same on every machine.
QStringList dumpWindow(QWidget *window);

/// Controls without a name of their own or out of reach of Tab, texts that are cut off or too faint,
/// a window larger than the screen, grids with too few rows to work in.
QStringList faultsIn(QWidget *form);
