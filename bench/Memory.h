#pragma once

namespace tembra::bench {

// In MiB: what the process has and the most that it had since the last call.
struct Memory {
    double now = 0;
    double most = 0;
};

[[nodiscard]] Memory memory();

} // namespace tembra::bench
