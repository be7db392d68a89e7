// SPDX-License-Identifier: MIT
// Guards the number fields of a form against all input that does not pass their key filter:
// pasting, dropping, input methods, context menus.
#pragma once

#include <QAbstractButton>
#include <QHash>
#include <QLineEdit>
#include <QObject>

class FocusTracker;

enum class FieldFilter { Digits, Line };

/// A guarded field and the effect of keys in it.
struct FieldRule
{
    QLineEdit *field = nullptr;
    int longest = 0; ///< length that can be typed; text set by code may be longer
    FieldFilter filter = FieldFilter::Digits;
    QWidget *enterFocuses = nullptr;        ///< gets the focus on Enter
    QAbstractButton *enterClicks = nullptr; ///< clicked on Enter
    QWidget *keyFocuses = nullptr; ///< gets the focus after any other key with a character code
};

class FieldGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards fields of @p form, which owns this object. Switches the keyboard to English when one
    /// of them gets the focus.
    FieldGuard(QWidget *form, const FocusTracker *focus, const QList<FieldRule> &rules);

    /// Returns the rule of a field. Its field is null if the field is not guarded.
    FieldRule rule(const QLineEdit *field) const { return m_rules.value(field); }

signals:
    /// Emitted on Enter in a field whose rule has neither enterFocuses nor enterClicks.
    void entered();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void keyPressed(const FieldRule &rule, int code);

    QHash<const QObject *, FieldRule> m_rules;
};
