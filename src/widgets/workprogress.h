// SPDX-License-Identifier: MIT
// The progress bar on the screen.
#pragma once

#include "widgets/progressbar.h"

#include <QElapsedTimer>
#include <QProgressBar>

/// Shows and paints itself from within the work, which takes no events; work that is done before
/// a bar would be seen goes without.
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
    QElapsedTimer m_unseen; ///< since the start, or since the bar was painted last
};
