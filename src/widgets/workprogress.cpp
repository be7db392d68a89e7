// SPDX-License-Identifier: MIT
#include "widgets/workprogress.h"

WorkProgress::WorkProgress(QWidget *parent) : QProgressBar(parent)
{
    QSizePolicy keepsItsPlace = sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true); // or showing it would wait for a layout
    setSizePolicy(keepsItsPlace);
    hide();
}

void WorkProgress::start(int maximum)
{
    setRange(0, maximum);
    setValue(0);
    m_steps = 0;
    m_unseen.start();
}

void WorkProgress::step()
{
    constexpr qint64 SightMsecs = 40; // what passes sooner is not seen
    if (m_steps == maximum())
        return;
    ++m_steps;
    if (m_unseen.elapsed() >= SightMsecs) {
        show();
        setValue(m_steps); // paints
        m_unseen.start();
    } else if (m_steps == maximum()) {
        setValue(m_steps);
    }
}

void WorkProgress::finish()
{
    hide();
    setValue(0);
}
