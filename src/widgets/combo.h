// SPDX-License-Identifier: MIT
// Combo box whose index and text go their own ways, as a keyer of names needs it.
#pragma once

#include <QComboBox>

#include <functional>

/// The toolkit adds typed text to the list, completes it and keeps the index of an entry that
/// has been typed over; none of that is wanted, since the index says whether the text is a known
/// name. Typing over an entry drops the index and keeps the text. A text that is an entry to the
/// letter chooses that entry when the combo is left. The wheel does nothing, as a touch of it
/// would change the customer unseen.
class Combo : public QComboBox
{
    Q_OBJECT

public:
    explicit Combo(QWidget *parent = nullptr);

    /// Filter of the keys that give characters, called with the character's code before the
    /// combo takes the key; 0 as result swallows it. Text of an input method passes it too.
    std::function<int(int code)> keyPress;

    /// Replaces the list and keeps the text. No entry is chosen.
    void setList(const QStringList &entries);

    /// Chooses an entry, or none with -1, which empties the text. Emits clicked() in any case.
    void setListIndex(int index);
    int listIndex() const { return currentIndex(); }

    /// Index of the first entry that starts with @p text, letters without regard to case, or -1.
    int findStart(const QString &text) const;

signals:
    /// An entry was chosen, by the user or by code, also the one that already was.
    void clicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void dropIndexOfForeignText(const QString &text);
};

/// Type-ahead for a name combo: proposes the first entry that starts with what is typed and
/// selects the tail, which the next key replaces. Gives the code to pass on, 0 once an entry is
/// found.
int ComboAutoComplete(Combo &combo, int code);
