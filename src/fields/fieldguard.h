// SPDX-License-Identifier: MIT
// Guard of a form's number fields: whatever is typed, clicked, pasted or dropped, a field holds
// only what its filter passes.
#pragma once

#include "fields/fieldtable.h"

#include <QHash>
#include <QLineEdit>
#include <QObject>

class FocusTracker;
class QKeyEvent;
class QMouseEvent;

class FieldGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards all fields that the field table names for the form of this object name. The
    /// keyboard is switched to English when one of them gets the focus.
    FieldGuard(QWidget *form, const FocusTracker *focus);

signals:
    /// Enter in a field whose rule leaves the rest to the form.
    void entered();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void guard(QLineEdit *field, const FieldRule *rule);
    bool keyPressed(QLineEdit *field, const QKeyEvent &key);
    static bool mousePressed(const FieldRule &rule, const QMouseEvent &mouse);
    void pressEnter(const FieldRule &rule);
    void moveFocusTo(const char *control);

    QWidget *m_form;
    QHash<const QObject *, const FieldRule *> m_rules;
};
