// SPDX-License-Identifier: MIT
#include "platform/dialogplace.h"

#include <QDialog>
#include <QScreen>
#include <QWidget>

void placeDialog(QWidget &dialog)
{
    constexpr QSize WindowFrame(8, 40);
    const QRect desktop = dialog.screen()->availableGeometry();
    dialog.resize(dialog.size().boundedTo(desktop.size() - WindowFrame));
    const QSize spare = desktop.size() - WindowFrame - dialog.size();
    dialog.move(desktop.x() + spare.width() / 2, desktop.y() + spare.height() / 3);
}

int runDialog(QDialog &dialog)
{
    const int result = dialog.exec();
    if (QWidget *opener = dialog.parentWidget())
        opener->activateWindow();
    return result;
}
