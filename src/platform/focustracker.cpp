// SPDX-License-Identifier: MIT
#include "platform/focustracker.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QWidget>

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
    QWidget *left = m_current;
    m_current = to;
    if (left)
        emit lostFocus(left);
    emit gotFocus(to);
}
