#pragma once

#include <cstddef>

namespace tembra {

// Undoes the filter of one row of a PNG (ISO/IEC 15948, 9): `row` begins with the filter's number, and the
// bytes after it become the row's own. `above` is the row before, undone, without its number; zeros above the
// first. False when there is no such filter.
[[nodiscard]] bool undoPngFilter(unsigned char *row, const unsigned char *above, std::size_t size,
                                 int channels);

} // namespace tembra
