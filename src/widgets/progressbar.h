// SPDX-License-Identifier: MIT
// Interface through which code without windows shows the progress of long work.
#pragma once

/// The progress of work that runs without processing events.
class ProgressBar
{
public:
    virtual ~ProgressBar() = default;

    /// Starts at 0 of @p maximum steps. The bar stays hidden if the work is done quickly.
    virtual void start(int maximum) = 0;

    /// Advances by one step unless the bar is full.
    virtual void step() = 0;

    /// Hides the bar and resets it to 0.
    virtual void finish() = 0;
};
