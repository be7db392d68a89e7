// SPDX-License-Identifier: MIT
#include "desktop/focustracker.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QWidget>

#include <utility>

namespace {

/// Returns true for windows that take the focus only for a moment: the control behind them still
/// counts as focused.
bool isTransient(const QWidget *window)
{
    return window->windowType() == Qt::Popup || qobject_cast<const QMessageBox *>(window)
           || qobject_cast<const QFileDialog *>(window);
}

} // namespace

FocusTracker::FocusTracker(QObject *parent)
    : QObject(parent), m_current(QApplication::focusWidget())
{
    connect(qApp, &QApplication::focusChanged, this, &FocusTracker::focusMoved);
}

void FocusTracker::focusMoved(QWidget *, QWidget *to)
{
    if (!to || to == m_current || isTransient(to->window()))
        return;
    // The focus may also change outside of Application::notify(). Sending an event makes sure that
    // the handlers run inside it, where their run-time errors are caught.
    m_left = std::exchange(m_current, to);
    QEvent moved(QEvent::User);
    QCoreApplication::sendEvent(this, &moved);
}

bool FocusTracker::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    const QPointer<QWidget> to = m_current;
    if (m_left)
        emit lostFocus(m_left);
    if (to)
        emit gotFocus(to);
    return true;
}
