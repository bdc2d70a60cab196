#pragma once

#include <cstddef>
#include <cstdint>

namespace tembra {

// Changes a JSON text as LLVMFuzzerCustomMutator is asked to: often one of its numbers to another that lies
// at a limit, which bytes that change by chance rarely do; else any bytes.
[[nodiscard]] std::size_t mutateJson(std::uint8_t *data, std::size_t size, std::size_t room, unsigned seed);

} // namespace tembra
