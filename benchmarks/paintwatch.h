// SPDX-License-Identifier: MIT
// Waits until a widget has been painted, which ends the delay that the user notices.
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QWidget>

class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }

    /// Processes events until the widget has been painted. Aborts after five seconds.
    void wait() const
    {
        const QDeadlineTimer deadline(5000);
        while (!m_painted && !deadline.hasExpired())
            QApplication::processEvents();
        if (!m_painted)
            qFatal("the widget was not painted");
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};
