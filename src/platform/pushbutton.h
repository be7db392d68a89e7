// SPDX-License-Identifier: MIT
// Push button that Enter presses as well as Space.
#pragma once

#include <QKeyEvent>
#include <QPushButton>

class PushButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && !event->isAutoRepeat())
            click();
        else if (!enter)
            QPushButton::keyPressEvent(event);
    }
};
