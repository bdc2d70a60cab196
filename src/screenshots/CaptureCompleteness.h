#pragma once

#include "base/Clocks.h"
#include "platform/FileVersion.h"
#include "platform/OpenFile.h"

#include <QStringView>

#include <chrono>

namespace tembra {

// Whether a capture is whole, for what is known of its version now. Any thread.
struct CaptureCompleteness {
    // An image changed within this time is decoded to see whether it is whole.
    static constexpr std::chrono::seconds justWritten{3};

    // How long a version has stood unchanged. A date in the future is a clock that was wrong: the file is as
    // old as it gets.
    [[nodiscard]] static std::chrono::nanoseconds stillFor(const FileVersion &version, Instant now);
    // `extension` in lower case.
    [[nodiscard]] static bool isComplete(const OpenFile &file, QStringView extension, bool isVideo,
                                         std::chrono::nanoseconds stillFor);
};

} // namespace tembra
