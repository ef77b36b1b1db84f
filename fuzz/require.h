// What must hold for every input of a fuzz target. It aborts, which libFuzzer reports with the
// input.
#pragma once

#include <cstdlib>

inline void Require(bool holds)
{
    if (!holds)
        std::abort();
}
