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
    const QPointer<QWidget> left = std::exchange(m_current, to);
    const QPointer<QWidget> reached = to; // a slot may delete either
    if (left)
        emit lostFocus(left);
    if (reached)
        emit gotFocus(reached);
}
