// SPDX-License-Identifier: MIT
#include "shell/skin.h"

#include <QApplication>
#include <QFile>
#include <QStyleFactory>

using namespace Qt::StringLiterals;

void loadSkin(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
#ifndef Q_OS_WIN
    qApp->setStyle(QStyleFactory::create(u"Fusion"_s)); // what the sheet is drawn for
#endif
    qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
}
