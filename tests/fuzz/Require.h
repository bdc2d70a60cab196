#pragma once

#include <cstdio>
#include <cstdlib>

namespace tembra {

// Ends a fuzzer with a finding when something does not hold.
inline void require(bool holds, const char *promise) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken: %s\n", promise);
    std::abort();
}

} // namespace tembra
