// SPDX-License-Identifier: MIT
// Waiting for a repaint, the end of what a keyer feels.
#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QWidget>

/// Notices that a widget has been painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }

    /// Hands out events until the widget has been painted; ends the program if it never is.
    void wait() const
    {
        const QDeadlineTimer patience(5000);
        while (!m_painted && !patience.hasExpired())
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
