// SPDX-License-Identifier: MIT
// Guard of a form's number fields: whatever is typed, clicked, pasted or dropped, a field holds
// only what its filter passes.
#pragma once

#include <QAbstractButton>
#include <QHash>
#include <QLineEdit>
#include <QObject>

class FocusTracker;

enum class FieldFilter { Digits, Line };

/// One guarded field and what keys do in it.
struct FieldRule
{
    QLineEdit *field = nullptr;
    int longest = 0; ///< characters that can be typed; text set by code may be longer
    FieldFilter filter = FieldFilter::Digits;
    QWidget *enterFocuses = nullptr;        ///< where Enter moves the focus
    QAbstractButton *enterClicks = nullptr; ///< the button that Enter presses
    QWidget *keyFocuses = nullptr;          ///< where any other key moves it, after the filter
};

class FieldGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards fields of a form, its owner. The keyboard is switched to English when one of them gets the
    /// focus.
    FieldGuard(QWidget *form, const FocusTracker *focus, const QList<FieldRule> &rules);

    /// The rule of a field, or one without a field.
    FieldRule rule(const QLineEdit *field) const { return m_rules.value(field); }

signals:
    /// Enter in a field whose rule has neither a target nor a button for it.
    void entered();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void keyPressed(const FieldRule &rule, int code);

    QHash<const QObject *, FieldRule> m_rules;
};
