#pragma once

#include "platform/linux/recognition/worker/GreyPicture.h"
#include "platform/linux/recognition/worker/ReadText.h"

#include <chrono>
#include <optional>
#include <string_view>

namespace tembra::recognition {

// The worker's end of the socket to the program: pictures come, texts go (WorkerProtocol.h).
class PictureSocket {
public:
    explicit PictureSocket(int descriptor) : m_descriptor(descriptor) {}

    // Waits for the next picture and takes it. Nothing when none has come for that long, when the program is
    // gone or what it sent is no picture.
    [[nodiscard]] std::optional<GreyPicture> next(std::chrono::milliseconds idleTime) const;
    [[nodiscard]] bool answer(const std::vector<ReadLine> &lines) const;
    // False when the program is gone.
    [[nodiscard]] bool say(std::string_view text) const;

private:
    // -1 at the end.
    [[nodiscard]] int receive() const;

    int m_descriptor;
};

} // namespace tembra::recognition
