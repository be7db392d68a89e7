// SPDX-License-Identifier: MIT
// A progress bar that shows nothing.
#pragma once

#include "widgets/progressbar.h"

struct NoProgress : ProgressBar
{
    void start(int) override {}
    void step() override {}
    void finish() override {}
};
