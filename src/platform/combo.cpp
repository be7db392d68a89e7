// SPDX-License-Identifier: MIT
#include "platform/combo.h"

#include "platform/keycodes.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

Combo::Combo(QWidget *parent) : QComboBox(parent)
{
    setInsertPolicy(NoInsert);
    connect(this, &QComboBox::activated, this, &Combo::clicked);
    connect(this, &QComboBox::editTextChanged, this, &Combo::dropIndexOfForeignText);
}

void Combo::setList(const QStringList &entries)
{
    const QString text = currentText();
    const QSignalBlocker quiet(this);
    if (isEditable())
        setCompleter(nullptr);
    clear();
    addItems(entries); // the toolkit now has chosen the first entry by itself
    setCurrentIndex(-1);
    if (isEditable())
        setEditText(text);
}

void Combo::setListIndex(int index)
{
    setCurrentIndex(index);
    if (isEditable())
        setEditText(itemText(index));
    emit clicked();
}

int Combo::findStart(const QString &text) const
{
    for (int at = 0; at < count(); ++at) {
        if (itemText(at).startsWith(text, Qt::CaseInsensitive))
            return at;
    }
    return -1;
}

void Combo::keyPressEvent(QKeyEvent *event)
{
    const int code = characterCode(*event);
    if (code != 0 && keyPress && keyPress(code) == 0) {
        event->accept();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void Combo::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void Combo::dropIndexOfForeignText(const QString &text)
{
    if (currentIndex() < 0 || text == itemText(currentIndex()))
        return;
    const int cursor = lineEdit()->cursorPosition();
    const QSignalBlocker quiet(this);
    const QSignalBlocker quietText(lineEdit());
    setCurrentIndex(-1); // empties the text, which has to stay
    setEditText(text);
    lineEdit()->setCursorPosition(cursor);
}

int ComboAutoComplete(Combo &combo, int code)
{
    QLineEdit &edit = *combo.lineEdit();
    if (edit.hasSelectedText())
        edit.del();
    const QString search = edit.text() + QChar(code);
    const int found = combo.findStart(search);
    if (found < 0)
        return code;
    combo.setListIndex(found);
    edit.setSelection(int(edit.text().size()), -int(edit.text().size() - search.size()));
    return 0;
}
