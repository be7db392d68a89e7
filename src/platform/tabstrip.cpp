// SPDX-License-Identifier: MIT
#include "platform/tabstrip.h"

#include <QSignalBlocker>

TabStrip::TabStrip(QWidget *parent) : QTabBar(parent)
{
    setExpanding(false);
    setDrawBase(false);
    connect(this, &QTabBar::currentChanged, this, &TabStrip::clicked);
}

void TabStrip::setTab(int tab)
{
    {
        const QSignalBlocker quiet(this);
        setCurrentIndex(tab);
    }
    update(); // what the blocked signals would have brought about
    emit clicked();
}
