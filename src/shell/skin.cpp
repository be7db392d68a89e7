// SPDX-License-Identifier: MIT
#include "shell/skin.h"

#include <QApplication>
#include <QFile>

void loadSkin(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
}
