// SPDX-License-Identifier: MIT
#include "widgets/tabstrip.h"

#include "widgets/narrowedfont.h"

#include <QFontMetrics>
#include <QScopedValueRollback>
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
    update();
    emit clicked();
}

void TabStrip::tabLayoutChange()
{
    const bool isNarrowed = font().stretch() != QFont::AnyStretch;
    if (m_fitting || (!isNarrowed && sizeHint().width() <= width()))
        return; // measuring Thai texts is slow, and only small screens need narrower captions
    const QScopedValueRollback fitting(m_fitting, true);
    QString captions;
    for (int tab = 0; tab < count(); ++tab)
        captions += tabText(tab);
    if (m_padding < 0)
        m_padding = tabSizeHint(0).width() - QFontMetrics(font()).horizontalAdvance(tabText(0));
    const int textWidth = width() - m_padding * count();
    QFont full = font();
    full.setStretch(QFont::AnyStretch);
    const QFont narrowed = narrowedFont(full, captions, textWidth);
    if (narrowed.stretch() != font().stretch())
        setFont(narrowed);
}
