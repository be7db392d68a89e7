// SPDX-License-Identifier: MIT
#include "desktop/focustracker.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QWidget>

#include <utility>

namespace {

/// True for windows that stand in front of a form for a moment without taking its place.
bool isPassing(const QWidget *window)
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
    if (!to || to == m_current || isPassing(to->window()))
        return;
    // Focus also moves with no event being handed out. As an event of its own the move reaches
    // its handlers where the run-time errors that they raise are caught.
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
