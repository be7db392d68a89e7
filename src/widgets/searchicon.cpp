// SPDX-License-Identifier: MIT
#include "widgets/searchicon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

QIcon searchIcon()
{
    QPixmap picture(64, 64); // scaled down by the buttons
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = QGuiApplication::palette().color(QPalette::ButtonText);
    painter.setPen(QPen(ink, 7, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(26, 26), 18, 18);
    painter.drawLine(QPointF(40, 40), QPointF(57, 57));
    return picture;
}
