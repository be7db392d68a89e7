// SPDX-License-Identifier: MIT
// Tracks the focus as the forms need it: it moves only between controls of the program. A message
// box, a file dialog, a menu or another program's window does not take it away.
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

class FocusTracker : public QObject
{
    Q_OBJECT

public:
    explicit FocusTracker(QObject *parent);

signals:
    void lostFocus(QWidget *control);
    void gotFocus(QWidget *control);

private:
    void focusMoved(QWidget *from, QWidget *to);

    QPointer<QWidget> m_current; ///< has the focus, also while a box or another program is in front
};
