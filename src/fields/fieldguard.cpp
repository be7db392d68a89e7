// SPDX-License-Identifier: MIT
#include "fields/fieldguard.h"

#include "desktop/focustracker.h"
#include "desktop/handler.h"
#include "desktop/keycodes.h"
#include "fields/filters.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace {

/// Returns true for keys without a character code that would change a field past its filter:
/// Shift+Insert, and undo and redo keys, which would restore a text set by the form.
bool bypassesFilter(const QKeyEvent &key)
{
    return key.matches(QKeySequence::Paste) || key.matches(QKeySequence::Undo)
           || key.matches(QKeySequence::Redo);
}

/// Returns true for the mouse buttons that could insert text. Shows a box for the right one.
bool refuseButton(const FieldRule &rule, Qt::MouseButton button)
{
    if (button == Qt::RightButton && rule.filter == FieldFilter::Line)
        refuseRightClickInLine();
    else if (button == Qt::RightButton)
        refuseRightClick();
    return button == Qt::RightButton || button == Qt::MiddleButton;
}

} // namespace

FieldGuard::FieldGuard(QWidget *form, const FocusTracker *focus, const QList<FieldRule> &rules)
    : QObject(form)
{
    for (const FieldRule &rule : rules) {
        m_rules.insert(rule.field, rule);
        rule.field->installEventFilter(this);
        rule.field->setAcceptDrops(false);
        rule.field->setDragEnabled(false);
        rule.field->setAttribute(Qt::WA_InputMethodEnabled, false);
        rule.field->setContextMenuPolicy(Qt::PreventContextMenu);
    }
    connectHandler(focus, &FocusTracker::gotFocus, this, [this](QWidget *control) {
        if (m_rules.contains(control))
            SetEnglishKeyboard();
    });
}

bool FieldGuard::eventFilter(QObject *object, QEvent *event)
{
    const FieldRule rule = m_rules.value(object);
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto &key = *static_cast<QKeyEvent *>(event);
        const int code = characterCode(key);
        if (code == 0)
            return isStrayText(key) || bypassesFilter(key);
        keyPressed(rule, code);
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return refuseButton(rule, static_cast<QMouseEvent *>(event)->button());
    case QEvent::MouseButtonRelease: // the middle button pastes on release
        return static_cast<QMouseEvent *>(event)->button() == Qt::MiddleButton;
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

void FieldGuard::keyPressed(const FieldRule &rule, int code)
{
    QLineEdit &field = *rule.field;
    if (code == EnterCode) {
        if (rule.enterFocuses)
            rule.enterFocuses->setFocus();
        else if (rule.enterClicks)
            rule.enterClicks->click();
        else
            emit entered();
        return;
    }
    const int passed = rule.filter == FieldFilter::Line ? LineFilter(code) : DigitFilter(code);
    if (passed == BackspaceCode)
        field.backspace();
    else if (passed != 0 && field.text().size() - field.selectedText().size() < rule.longest)
        field.insert(QChar(passed));
    if (rule.keyFocuses)
        rule.keyFocuses->setFocus();
}
