// SPDX-License-Identifier: MIT
#include "desktop/background.h"

#include <QFrame>
#include <QLabel>

void paintGround(QWidget *widget, QRgb ground)
{
    const bool box = qobject_cast<QFrame *>(widget) != nullptr;
    QPalette colors = widget->palette();
    colors.setColor(box ? QPalette::Window : QPalette::Base, QColor(ground));
    colors.setColor(box ? QPalette::WindowText : QPalette::Text, Qt::black);
    widget->setPalette(colors);
    if (!box)
        return;
    widget->setAutoFillBackground(true);
    for (auto *label : widget->findChildren<QLabel *>())
        label->setPalette(colors); // with a style sheet in force they inherit no colours
}
