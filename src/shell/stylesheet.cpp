// SPDX-License-Identifier: MIT
#include "shell/stylesheet.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>

namespace {

/// The style's own grey of what is disabled and its own blue behind what is chosen let texts stand
/// out too little. These colours do on a light desktop as on a dark one.
void sharpenTexts()
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
    sharpenTexts();
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
    // A style sheet brings back the desktop's fonts for buttons, grids, boxes and menus.
    QApplication::setFont(QApplication::font());
}
