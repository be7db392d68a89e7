// SPDX-License-Identifier: MIT
#include "widgets/combo.h"

#include "desktop/keycodes.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

Combo::Combo(QWidget *parent) : QComboBox(parent)
{
    setInsertPolicy(NoInsert);
    setFocusPolicy(Qt::StrongFocus); // no focus by the wheel
    connect(this, &QComboBox::activated, this, &Combo::clicked);
    connect(this, &QComboBox::editTextChanged, this, &Combo::dropIndexOfForeignText);
}

void Combo::setList(const QStringList &entries)
{
    const QString text = currentText();
    const QSignalBlocker quiet(this);
    if (isEditable())
        setCompleter(nullptr);
    QStringList shown;
    for (int at = 0; at < count(); ++at)
        shown += itemText(at);
    if (shown != entries) { // filling a list takes much longer than comparing it
        clear();
        addItems(entries);
    }
    setCurrentIndex(-1); // addItems() selects the first entry
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
    if (keyPress && (isStrayText(*event) || (code != 0 && keyPress(code) == 0))) {
        event->accept();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void Combo::inputMethodEvent(QInputMethodEvent *event)
{
    if (!keyPress || !isEditable() || event->commitString().isEmpty()) {
        QComboBox::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent composing(event->preeditString(), event->attributes());
    QComboBox::inputMethodEvent(&composing);
    for (const QChar character : event->commitString()) {
        if (keyPress(character.unicode()) != 0)
            lineEdit()->insert(character);
    }
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
    setCurrentIndex(-1); // also clears the text
    setEditText(text);
    lineEdit()->setCursorPosition(cursor);
}

int ComboAutoComplete(Combo &combo, int code)
{
    QLineEdit &edit = *combo.lineEdit();
    if (edit.hasSelectedText())
        edit.del();
    // A filter that rejected the key has set the code to 0: propose the same entry again.
    const QString search = code == 0 ? edit.text() : edit.text() + QChar(code);
    const int found = search.isEmpty() ? -1 : combo.findStart(search);
    if (found < 0)
        return code;
    combo.setListIndex(found);
    edit.setSelection(int(edit.text().size()), -int(edit.text().size() - search.size()));
    return 0;
}
