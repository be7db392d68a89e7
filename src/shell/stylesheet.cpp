// SPDX-License-Identifier: MIT
#include "shell/stylesheet.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>

namespace {

/// Fusion's colours of disabled texts and of the selection have too little contrast. These have
/// enough on a light and on a dark desktop.
void raiseContrast()
{
    QPalette colors = QApplication::palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    colors.setColor(QPalette::Highlight, QColor(0x1D, 0x6A, 0x99));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(colors);
}

} // namespace

void loadStyleSheet(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    raiseContrast();
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    // Setting a style sheet restores the desktop's fonts for buttons, grids, boxes and menus.
    QApplication::setFont(QApplication::font());
}
