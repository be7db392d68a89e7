// SPDX-License-Identifier: MIT
// Combo box for customer names, whose text need not be an entry of its list.
#pragma once

#include <QComboBox>

#include <functional>

/// The index says whether the text is a known name. So editing the text of an entry sets the index
/// to -1 and keeps the text, where QComboBox would keep the index. Typed text is not added to the
/// list, and QCompleter is not used. As in QComboBox, a text that equals an entry exactly selects
/// that entry when the combo box loses the focus. The mouse wheel is ignored, since scrolling could
/// change the customer unnoticed.
class Combo : public QComboBox
{
    Q_OBJECT

public:
    explicit Combo(QWidget *parent = nullptr);

    /// Key filter, called with the characterCode() of a key before the combo box handles it. The
    /// key is discarded if the filter returns 0. Characters committed by an input method are
    /// filtered too.
    std::function<int(int code)> keyPress;

    /// Replaces the list and keeps the text. No entry is selected.
    void setList(const QStringList &entries);

    /// Selects an entry, or none if @p index is -1, which clears the text. Emits clicked() in any
    /// case.
    void setListIndex(int index);

    /// Returns the index of the selected entry, or -1.
    int listIndex() const { return currentIndex(); }

    /// Returns the index of the first entry that starts with @p text (case-insensitive), or -1.
    int findStart(const QString &text) const;

signals:
    /// Emitted when the user or setListIndex() selects an entry, even if it was selected already.
    void clicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void dropIndexOfForeignText(const QString &text);
};

/// Type-ahead for names, to be called from Combo::keyPress. Selects the first entry that starts
/// with the text plus the typed character, and highlights the rest of its text, so that the next
/// key replaces it. Returns @p code if no entry is found, otherwise 0.
int ComboAutoComplete(Combo &combo, int code);
