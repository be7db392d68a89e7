// SPDX-License-Identifier: MIT
// Push button that Enter clicks too.
#pragma once

#include <QKeyEvent>
#include <QPushButton>

/// Enter clicks the button once, however long the key is held. The button is wider than QPushButton
/// to leave space around the caption.
class PushButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override { return QPushButton::sizeHint() + QSize(16, 0); }
    QSize minimumSizeHint() const override { return sizeHint(); }

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
