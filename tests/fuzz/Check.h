/// What a fuzz target demands of the code.
#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program, which the fuzzer reports with the input, when a demand is not met.
inline void demand(bool met, const char* what)
{
    if (met)
        return;
    std::fprintf(stderr, "not met: %s\n", what);
    std::abort();
}
