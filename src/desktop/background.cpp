// SPDX-License-Identifier: MIT
#include "desktop/background.h"

#include <QFrame>
#include <QLabel>

void setBackground(QWidget *widget, QRgb color)
{
    const bool box = qobject_cast<QFrame *>(widget) != nullptr;
    QPalette colors = widget->palette();
    colors.setColor(box ? QPalette::Window : QPalette::Base, QColor(color));
    colors.setColor(box ? QPalette::WindowText : QPalette::Text, Qt::black);
    widget->setPalette(colors);
    if (!box)
        return;
    widget->setAutoFillBackground(true);
    for (auto *label : widget->findChildren<QLabel *>())
        label->setPalette(colors); // under a style sheet they do not inherit the palette
}
