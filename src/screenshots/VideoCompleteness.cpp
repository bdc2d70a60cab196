#include "screenshots/VideoCompleteness.h"

#include "screenshots/ContainerLength.h"

namespace tembra {

using namespace std::chrono_literals;

namespace {

constexpr auto settled = 1s;

} // namespace

bool VideoCompleteness::isCompleteVideo(const OpenFile &file, QStringView extension,
                                        std::chrono::nanoseconds stillFor) {
    const std::uint64_t size = file.size();
    if (size == 0 || stillFor < settled)
        return false;
    if (extension != u"webm" && extension != u"mkv")
        return isWholeIsoMedia(file, size, "moov");
    const MatroskaLength length = matroskaLength(file, size);
    return length == MatroskaLength::whole || (length == MatroskaLength::unknown && stillFor >= abandoned);
}

} // namespace tembra
