// SPDX-License-Identifier: MIT
// The focus as this trade's forms know it: it moves only from one control of the program to
// another. A message box, a menu or another program's window takes no control's focus away.
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

protected:
    bool event(QEvent *event) override;

private:
    void focusMoved(QWidget *from, QWidget *to);

    QPointer<QWidget> m_current; ///< has the focus, also while a box or another program is in front
    QPointer<QWidget> m_left;
};
