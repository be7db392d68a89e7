// SPDX-License-Identifier: MIT
// The progress bar on the screen.
#pragma once

#include "platform/progressbar.h"

#include <QProgressBar>

/// Paints itself at once with each step that shows, since long work takes no events.
class WorkProgress : public QProgressBar, public ProgressBar
{
    Q_OBJECT

public:
    explicit WorkProgress(QWidget *parent = nullptr);

    void start(int maximum) override;
    void step() override;
    void finish() override;
};
