// SPDX-License-Identifier: MIT
#include "desktop/dialogplace.h"

#include <QDialog>
#include <QScreen>
#include <QWidget>

namespace {

/// Shrinks a window that is larger than the screen and leaves 1/@p share of the free height above
/// it.
void place(QWidget &window, int share)
{
    constexpr QSize WindowFrame(8, 40); // the real one is known only after show()
    const QRect desktop = window.screen()->availableGeometry();
    window.resize(window.size().boundedTo(desktop.size() - WindowFrame));
    const QSize spare = desktop.size() - WindowFrame - window.size();
    window.move(desktop.x() + spare.width() / 2, desktop.y() + spare.height() / share);
}

} // namespace

void centerWindow(QWidget &window)
{
    place(window, 2);
}

void placeDialog(QWidget &dialog)
{
    place(dialog, 3);
}

int runDialog(QDialog &dialog)
{
    const int result = dialog.exec();
    if (QWidget *opener = dialog.parentWidget())
        opener->activateWindow();
    return result;
}
