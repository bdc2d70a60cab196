#pragma once

#include <cstdio>
#include <cstdlib>

namespace tembra::bench {

// Ends the benchmark when something that it stands on does not hold.
inline void require(bool condition, const char *what) {
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(EXIT_FAILURE);
}

} // namespace tembra::bench
