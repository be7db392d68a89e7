// SPDX-License-Identifier: MIT
// Controls as a person finds, reads and works them: by name or caption, with real key and mouse
// events that go through the window.
#pragma once

#include <QStringList>

class QWidget;

/// Thrown by a step that cannot be done as things are; the player tries again for some seconds.
struct NotYet
{
    QString reason;
};

/// Throws NotYet if the two differ.
void expect(const QString &expected, const QString &actual);

/// The control of that name in @p window, or the visible button of that caption. "A.B" is the control
/// B in A. In the main window the page comes first.
QWidget *findControl(QWidget *window, const QString &name);

/// Name of a control, or of the one that it is a part of.
QString nameOf(const QWidget *control);

/// What @p control says, without blanks at the ends: its text, the captions of tabs as "a|[b]", the
/// one on top in brackets, the value of a bar. @p part is "" or "2,1" for a cell, "active" or "rows"
/// of a grid, "list" of a combo, "base" for the colour of a field, else a property.
QString read(const QWidget *control, const QString &part = {});

/// The rows of a grid: the cells in @p columns, or in those that are visible, parted by "|", and
/// " hot" behind a row with a coloured cell.
QStringList gridRows(const QWidget *grid, const QStringList &columns);

/// Scrolls to a control on a page that is larger than its window.
void scrollTo(QWidget *control);

/// Presses and releases a key, such as "<Shift+Tab>" or "a", in the window that has the focus.
void pressKey(const QString &key);

/// Clicks @p place of @p control: "" its middle, "2,1" a cell, "below" under the rows of a grid, a
/// number a tab, and "2,1>3,1" a slip of the mouse. @p how is "double", "right" or "".
void click(QWidget *control, const QString &place = {}, const QString &how = {});
