// SPDX-License-Identifier: MIT
// Progress bar widget.
#pragma once

#include "widgets/progressbar.h"

#include <QElapsedTimer>
#include <QProgressBar>

/// Shows and repaints itself in step(), since no events are processed during the work. Stays hidden
/// if the work is done before the bar could be seen.
class WorkProgress : public QProgressBar, public ProgressBar
{
    Q_OBJECT

public:
    explicit WorkProgress(QWidget *parent = nullptr);

    void start(int maximum) override;
    void step() override;
    void finish() override;

private:
    int m_steps = 0;
    QElapsedTimer m_sincePaint; ///< since start() or the last repaint
};
