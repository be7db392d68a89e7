// SPDX-License-Identifier: MIT
#include "widgets/workprogress.h"

WorkProgress::WorkProgress(QWidget *parent) : QProgressBar(parent)
{
    // Showing the bar must not change the layout: that would need the event loop.
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    hide();
}

void WorkProgress::start(int maximum)
{
    setRange(0, maximum);
    setValue(0);
    m_steps = 0;
    m_sincePaint.start();
}

void WorkProgress::step()
{
    constexpr qint64 PaintMsecs = 40; // more frequent changes cannot be seen
    if (m_steps == maximum())
        return;
    ++m_steps;
    if (m_sincePaint.elapsed() >= PaintMsecs) {
        show();
        setValue(m_steps); // repaints at once
        m_sincePaint.start();
    } else if (m_steps == maximum()) {
        setValue(m_steps);
    }
}

void WorkProgress::finish()
{
    hide();
    setValue(0);
}
