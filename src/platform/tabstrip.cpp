// SPDX-License-Identifier: MIT
#include "platform/tabstrip.h"

#include <QSignalBlocker>

#include <utility>

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
    if (m_holds > 0)
        m_clickDue = true;
    else
        emit clicked();
}

TabStrip::OneClick::~OneClick()
{
    if (--m_tabs.m_holds == 0 && std::exchange(m_tabs.m_clickDue, false))
        emit m_tabs.clicked();
}
