// SPDX-License-Identifier: MIT
// What a fuzz target demands of the program.
#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the process with @p rule unless it held, so that a fuzzer keeps the input.
inline void require(bool held, const char *rule)
{
    if (held)
        return;
    std::fprintf(stderr, "broken: %s\n", rule);
    std::abort();
}
