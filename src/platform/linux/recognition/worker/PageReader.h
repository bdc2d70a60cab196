#pragma once

#include "platform/linux/recognition/WorkerProtocol.h"
#include "platform/linux/recognition/worker/PixOwner.h"
#include "platform/linux/recognition/worker/ReadText.h"

#include <tl/expected.hpp>

namespace tembra::recognition {

// The lines of a grey picture in reading order, read by as many engines as there are processors to spare.
// Small text is read enlarged.
[[nodiscard]] tl::expected<std::vector<ReadLine>, ExitCode> readPage(Pix *grey, const std::string &languages);

} // namespace tembra::recognition
