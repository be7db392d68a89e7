// SPDX-License-Identifier: MIT
// The progress bar as logic sees it: long work moves it without knowing any window.
#pragma once

/// A bar that covers the wait of long work. Work takes no other event meanwhile.
class ProgressBar
{
public:
    virtual ~ProgressBar() = default;

    /// Begins at 0, with @p maximum as the full length. Work that is soon done shows no bar.
    virtual void start(int maximum) = 0;

    /// Moves on by 1 unless the bar is full.
    virtual void step() = 0;

    /// Hides the bar and sets it back to 0.
    virtual void finish() = 0;
};
