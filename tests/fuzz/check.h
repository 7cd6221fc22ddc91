#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the process when an invariant does not hold, also in builds without assertions.
#define FUZZ_CHECK(condition)                                                                      \
    do                                                                                             \
    {                                                                                              \
        if (!(condition))                                                                          \
        {                                                                                          \
            std::fprintf(stderr, "%s:%d: %s does not hold\n", __FILE__, __LINE__, #condition);     \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
