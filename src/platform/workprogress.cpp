// SPDX-License-Identifier: MIT
#include "platform/workprogress.h"

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
    show();
    repaint();
}

void WorkProgress::step()
{
    if (value() < maximum())
        setValue(value() + 1); // paints when the bar has grown by a pixel
}

void WorkProgress::finish()
{
    hide();
    setValue(0);
}
