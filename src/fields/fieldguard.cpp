// SPDX-License-Identifier: MIT
#include "fields/fieldguard.h"

#include "desktop/focustracker.h"
#include "desktop/keycodes.h"
#include "fields/filters.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

/// Keys without a character of their own that would fill a field past its filter: Shift+Insert,
/// and the undo keys of some keyboards, which would bring back what the form had put there.
bool bringsTextBack(const QKeyEvent &key)
{
    return key.matches(QKeySequence::Paste) || key.matches(QKeySequence::Undo)
           || key.matches(QKeySequence::Redo);
}

} // namespace

FieldGuard::FieldGuard(QWidget *form, const FocusTracker *focus) : QObject(form), m_form(form)
{
    for (const FieldRule &rule : FieldTable) {
        if (form->objectName() != QLatin1String(rule.form))
            continue;
        auto *field = form->findChild<QLineEdit *>(QLatin1String(rule.field));
        Q_ASSERT_X(field, "FieldGuard", rule.field);
        guard(field, &rule);
    }
    connect(focus, &FocusTracker::gotFocus, this, [this](QWidget *control) {
        if (m_rules.contains(control))
            SetEnglishKeyboard();
    });
}

void FieldGuard::guard(QLineEdit *field, const FieldRule *rule)
{
    m_rules.insert(field, rule);
    field->installEventFilter(this);
    field->setAcceptDrops(false);
    field->setDragEnabled(false);
    field->setAttribute(Qt::WA_InputMethodEnabled, false);
    field->setContextMenuPolicy(Qt::PreventContextMenu);
}

bool FieldGuard::eventFilter(QObject *object, QEvent *event)
{
    const FieldRule &rule = *m_rules.value(object);
    switch (event->type()) {
    case QEvent::KeyPress:
        return keyPressed(static_cast<QLineEdit *>(object), *static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return mousePressed(rule, *static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease: // the middle button pastes when it is let go
        return static_cast<QMouseEvent *>(event)->button() == Qt::MiddleButton;
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

bool FieldGuard::keyPressed(QLineEdit *field, const QKeyEvent &key)
{
    const FieldRule &rule = *m_rules.value(field);
    const int code = characterCode(key);
    if (code == 0)
        return isStrayText(key) || bringsTextBack(key);
    if (code == EnterCode) {
        pressEnter(rule);
        return true;
    }
    const int passed = rule.filter == FieldFilter::Line ? LineFilter(code) : DigitFilter(code);
    if (passed == BackspaceCode)
        field->backspace();
    else if (passed != 0 && field->text().size() - field->selectedText().size() < rule.longest)
        field->insert(QChar(passed));
    moveFocusTo(rule.movesOnTo);
    return true;
}

bool FieldGuard::mousePressed(const FieldRule &rule, const QMouseEvent &mouse)
{
    if (mouse.button() == Qt::RightButton) {
        if (rule.filter == FieldFilter::Line)
            refuseRightClickInLine();
        else
            refuseRightClick();
        return true;
    }
    return mouse.button() == Qt::MiddleButton;
}

void FieldGuard::pressEnter(const FieldRule &rule)
{
    switch (rule.enter) {
    case FieldEnter::Stays:
        break;
    case FieldEnter::Focuses:
        moveFocusTo(rule.target);
        break;
    case FieldEnter::Clicks:
        m_form->findChild<QAbstractButton *>(QLatin1String(rule.target))->click();
        break;
    case FieldEnter::Handled:
        emit entered();
        break;
    }
}

void FieldGuard::moveFocusTo(const char *control)
{
    if (control)
        m_form->findChild<QWidget *>(QLatin1String(control))->setFocus();
}
