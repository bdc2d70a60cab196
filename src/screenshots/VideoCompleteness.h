#pragma once

#include "platform/OpenFile.h"

#include <QStringView>

#include <chrono>

namespace tembra {

// Whether a recording is finished. Any thread.
struct VideoCompleteness {
    // A version that stood unchanged for this long is not waited for.
    static constexpr std::chrono::seconds abandoned{10};

    // `stillFor` is how long this version of the file has stood unchanged. The container must be as long as
    // it says; one that says nothing about its length, as recorders leave it when they are killed, counts
    // after a while.
    [[nodiscard]] static bool isCompleteVideo(const OpenFile &file, QStringView extension,
                                              std::chrono::nanoseconds stillFor);
};

} // namespace tembra
